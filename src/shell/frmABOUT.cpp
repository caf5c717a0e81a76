#include "shell/frmABOUT.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>

namespace hooptab {

namespace {

constexpr int kPurpose = 1541;
constexpr int kVersion = 1540;
constexpr int kLicence = 1612;
constexpr int kIconSize = 96;
constexpr int kTextWidth = 340;
constexpr int kNamePoints = 16;

} // namespace

frmABOUT::frmABOUT(const Texts& texts, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmABOUT"));
  setTextNumber(*this, 1382);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(24, 24, 24, 16);
  layout->setHorizontalSpacing(24);

  auto* picture = new PlainLabel(this);
  picture->setPixmap(icon(QStringLiteral("hooptab")).pixmap(kIconSize));
  layout->addWidget(picture, 0, 0, 5, 1, Qt::AlignTop);

  int row = 0;
  const auto addLine = [&](const char* name, int text) {
    auto* label = new PlainLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setFixedWidth(kTextWidth);
    setTextNumber(*label, text);
    layout->addWidget(label, row++, 1);
    return label;
  };
  QLabel* name = addLine("lblNAME", 0);
  name->setText(QStringLiteral("HOOPTAB Basketball"));
  QFont large = name->font();
  large.setPointSize(kNamePoints);
  large.setBold(true);
  name->setFont(large);
  addLine("lblPURPOSE", kPurpose);
  QLabel* version = addLine("lblVERSION", 0);
  version->setTextInteractionFlags(Qt::TextSelectableByMouse); // for a message to whoever helps
  addLine("lblLICENCE", kLicence);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons, 5, 0, 1, 2);

  relabel(*this, texts);
  version->setText(caption(texts, kVersion) + u' ' + QCoreApplication::applicationVersion() +
                   QStringLiteral("\nQt ") + QString::fromLatin1(qVersion()));
}

} // namespace hooptab
