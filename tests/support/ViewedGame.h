// A small game of two teams that grows through the store, as the program writes one.
#pragma once

#include "game/GameFile.h"
#include "storage/FileSystem.h"
#include "storage/ProfileStore.h"
#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace hooptab {

class ViewedGame {
 public:
  explicit ViewedGame(const std::string& name = "seen.GAM") : file(store, folder.path(name)) {
    folder.write(
        name,
        "[DETAILS]\nVERSION=2.0\nDATE=2026-11-05\nEQUIPE0COL=8438015\nEQUIPE1COL=12303223\n"
        "EQUIPE0ABB=LYNX\nEQUIPE1ABB=PUMA\nEQUIPE0NOM=Basketball College\nEQUIPE1NOM=Very Small School\n"
        "SUPP0=U1-Charges\nSUPP1=U2-\nENDROIT=Main gym\nNBREPERIODE=4\nDUREE=10\nBONUS=2\nTYPE=2\n"
        "NOTES=A close one\nEVENUM=13\n[0]\n4=0,Ann Able\n5=1,Bea Baker\n12=2,Cleo Carter\n"
        "23=9,Dana Dunn\n[1]\n7=0,Eve Ellis\n8=1,Fay Ford\n[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n"
        "2=10:00,ARRET,IN-04-05,IN-07-08\n3=10:00,DEPART\n4=09:50,GFG,0-4,40,50\n"
        "5=09:40,GF3A,0-5,110,90\n6=09:30,GF3,1-7,60,20\n7=09:30,SA,1-8\n8=09:20,SPF,0-12\n"
        "9=09:20,SPF,0-12\n10=09:10,ARRET,IN-05-12,IN-07-08\n11=09:10,DEPART\n12=09:00,GFG,0-12,30,30\n");
  }

  void add(int period, int clock, const std::vector<std::string>& events) {
    EXPECT_EQ(file.append(period, clock, file.nextNumber(), events), GameFileProblem::None);
  }

  TemporaryFolder folder;
  FileSystem files;
  ProfileStore store{files};
  GameFile file;
};

} // namespace hooptab
