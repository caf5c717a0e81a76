# Headers that nearly every file asks for, read once for all targets that are compiled alike. A file includes what it uses all
# the same: the tidy and fuzz presets build without.
set(hooptab_core_headers
    <algorithm> <array> <chrono> <cmath> <cstdint> <cstdlib> <filesystem> <functional> <limits> <map> <memory> <optional> <set>
    <span> <string> <string_view> <tuple> <utility> <vector>)
set(hooptab_qt_headers
    <QAction> <QApplication> <QBoxLayout> <QCheckBox> <QColor> <QComboBox> <QDateTime> <QDialog> <QDir> <QFileInfo> <QGridLayout>
    <QHash> <QHeaderView> <QImage> <QKeyEvent> <QLabel> <QLineEdit> <QListWidget> <QLocale> <QMenu> <QPainter> <QPainterPath>
    <QPointer> <QPushButton> <QScrollArea> <QShortcut> <QSignalBlocker> <QStackedWidget> <QStringList> <QTabWidget> <QTableView>
    <QTimer> <QToolButton> <QUrl>)

# hooptab_headers(NAME KIND HEADERS ... LINK ...) makes a target of KIND (library or program: their code is placed differently) that
# only holds compiled headers, for targets that link the same libraries.
function(hooptab_headers name kind)
  cmake_parse_arguments(PARSE_ARGV 2 ARG "" "" "HEADERS;LINK")
  set(empty "${CMAKE_BINARY_DIR}/${name}.cpp")
  file(CONFIGURE OUTPUT "${empty}" CONTENT "int main() {} // what asks for the compiled headers\n")
  if(kind STREQUAL "library")
    add_library(${name} OBJECT "${empty}")
    set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE "${BUILD_SHARED_LIBS}")
  else()
    add_executable(${name} EXCLUDE_FROM_ALL "${empty}")
  endif()
  target_link_libraries(${name} PRIVATE ${ARG_LINK})
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()
