#include "shell/frmABOUT.h"

#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>

namespace hooptab {

namespace {

constexpr int kIconSize = 96;
constexpr int kTextWidth = 340;
constexpr int kNamePoints = 16;

} // namespace

frmABOUT::frmABOUT(const Texts& texts, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmABOUT"));
  setTextNumber(*this, Text::About);
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(24, 24, 24, 16);
  layout->setHorizontalSpacing(24);

  auto* picture = new PlainLabel(this);
  picture->setPixmap(icon(QStringLiteral("hooptab")).pixmap(kIconSize));
  layout->addWidget(picture, 0, 0, 5, 1, Qt::AlignTop);

  int row = 0;
  const auto addLine = [&](const char* name, Text text) {
    auto* label = new PlainLabel(this);
    label->setObjectName(QLatin1String(name));
    label->setWordWrap(true);
    label->setFixedWidth(kTextWidth);
    setTextNumber(*label, text);
    layout->addWidget(label, row++, 1);
    return label;
  };
  QLabel* name = addLine("lblNAME", Text::None);
  name->setText(QStringLiteral("HOOPTAB Basketball"));
  QFont large = name->font();
  large.setPointSize(kNamePoints);
  large.setBold(true);
  name->setFont(large);
  addLine("lblPURPOSE", Text::Purpose);
  QLabel* version = addLine("lblVERSION", Text::None);
  version->setTextInteractionFlags(Qt::TextSelectableByMouse); // for a message to whoever helps
  addLine("lblLICENCE", Text::QtLicence);

  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  layout->addWidget(buttons, 5, 0, 1, 2);

  relabel(*this, texts);
  version->setText(caption(texts, Text::Version) + u' ' + QCoreApplication::applicationVersion() +
                   QStringLiteral("\nQt ") + QString::fromLatin1(qVersion()));
}

} // namespace hooptab
