#include "app/Project_Overview.h"

#include "app/Page_Parts.h"
#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "ui/Elided_Label.h"
#include "ui/Theme.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

Project_Overview::Project_Overview(Project_Session& session, const QList<QAction*>& actions, QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mName(new Elided_Label),
      mFile(new Elided_Label) {
  Page_Parts::setHeadingFont(*mName);
  auto* const form = new QFormLayout;
  form->setHorizontalSpacing(Page_Parts::cMargin);
  addRow(*form, tr("Datei"), mFile);
  mSaved = addRow(*form, tr("Gespeichert"));
  mLogicPages = addRow(*form, tr("Programmseiten"));
  mVisuPages = addRow(*form, tr("Visualisierungsseiten"));
  mAddresses = addRow(*form, tr("Gruppenadressen"));
  mPosition = addRow(*form, tr("Geographische Position"));

  auto* const content = new QWidget;
  auto* const layout = new QVBoxLayout(content);
  layout->setContentsMargins(0, 0, 0, 0);
  content->setContentsMargins(Page_Parts::cMargin, Page_Parts::cMargin, Page_Parts::cMargin, Page_Parts::cMargin);
  layout->setSpacing(12);
  layout->addWidget(mName);
  layout->addLayout(form);
  if (!actions.isEmpty()) {
    layout->addSpacing(12);
    layout->addWidget(Page_Parts::makeHeading(tr("Nächste Schritte")));
    for (QAction* const action : actions) {
      layout->addLayout(Page_Parts::makeButtons({action})); // one below the other: the window may be narrow
    }
  }
  layout->addStretch();
  Page_Parts::setContent(*this, content);

  mTimer.setSingleShot(true);
  mTimer.setInterval(0);
  connect(&mTimer, &QTimer::timeout, this, &Project_Overview::refresh);
  const auto later = [this] { mTimer.start(); };
  connect(&session, &Project_Session::opened, this, later);
  connect(&session, &Project_Session::closed, this, later);
  connect(&session, &Project_Session::pathChanged, this, later);
  connect(&session.history(), &History::changed, this, later);
  const ProjectDatabase& database = session.database();
  connect(&database.mAddresses, &Address_Tree::structureChanged, this, later);
  connect(&database.mFbPages, &DB_Page_List_Signals::structureChanged, this, later);
  connect(&database.mWidgetPages, &DB_Page_List_Signals::structureChanged, this, later);
  refresh();
}

QLabel* Project_Overview::addRow(QFormLayout& form, const QString& caption) {
  auto* const value = new QLabel;
  value->setTextInteractionFlags(Qt::TextSelectableByMouse);
  value->setWordWrap(true);
  value->setTextFormat(Qt::PlainText);
  addRow(form, caption, value);
  return value;
}

void Project_Overview::addRow(QFormLayout& form, const QString& caption, QLabel* value) {
  auto* const label = new QLabel(caption);
  Theme::setTextRole(*label, Theme::Role::SecondaryText);
  form.addRow(label, value);
}

void Project_Overview::refresh() {
  mTimer.stop();
  const ProjectDatabase& database = mSession.database();
  const DB_Project& project = database.mProject;
  const QLocale locale;
  mName->setText(QFileInfo(mSession.path()).completeBaseName());
  mFile->setText(QDir::toNativeSeparators(mSession.path()));
  mSaved->setText(project.mTimestamp > 0
                      ? locale.toString(QDateTime::fromSecsSinceEpoch(project.mTimestamp), QLocale::ShortFormat)
                      : tr("noch nie"));
  mLogicPages->setText(tr("%1 (Bausteine: %2)")
                           .arg(Decimal_Text::count(database.mFbPages.pages().size()),
                                Decimal_Text::count(database.mFbPages.childCount())));
  mVisuPages->setText(tr("%1 (Elemente: %2)")
                          .arg(Decimal_Text::count(database.mWidgetPages.pages().size()),
                               Decimal_Text::count(database.mWidgetPages.childCount())));
  const Address_Tree& tree = database.mAddresses;
  mAddresses->setText(tr("%1 (Hauptgruppen: %2, Mittelgruppen: %3)")
                          .arg(Decimal_Text::count(tree.subGroupCount()), Decimal_Text::count(tree.mainGroups().size()),
                               Decimal_Text::count(tree.middleGroupCount())));
  const bool isPlaced = project.mGeopos_Latitude != 0 || project.mGeopos_Longitude != 0;
  mPosition->setText(isPlaced ? tr("%1° Breite, %2° Länge")
                                    .arg(locale.toString(project.mGeopos_Latitude, 'f', 4),
                                         locale.toString(project.mGeopos_Longitude, 'f', 4))
                              : tr("nicht gesetzt"));
}
