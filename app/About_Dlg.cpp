#include "app/About_Dlg.h"

#include "base/Version.h"

#include <QDialogButtonBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int cMarkSize = 64;
constexpr int cHeadingPoints = 12;
} // namespace

About_Dlg::About_Dlg(QWidget* parent) : QDialog(parent) {
  setWindowTitle(tr("Über Quarna-Studio"));

  auto* const mark = new QLabel;
  mark->setPixmap(QIcon(QStringLiteral(":/icons/quarna-studio-256.png")).pixmap(cMarkSize));
  auto* const heading = new QLabel(QStringLiteral("Quarna-Studio"));
  QFont font = heading->font();
  font.setBold(true);
  font.setPointSize(cHeadingPoints);
  heading->setFont(font);
  auto* const text = new QLabel(tr("Version %1\nArbeitsplatz für die Gebäudesteuerung RZ8800\nMit Qt %2")
                                    .arg(Version::studio(), QString::fromLatin1(qVersion())));
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);

  auto* const words = new QVBoxLayout;
  words->addWidget(heading);
  words->addWidget(text);
  words->addStretch();
  auto* const top = new QHBoxLayout;
  top->setSpacing(12);
  top->addWidget(mark, 0, Qt::AlignTop);
  top->addLayout(words);

  auto* const buttons = new QDialogButtonBox;
  buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole)->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(12);
  layout->addLayout(top);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}
