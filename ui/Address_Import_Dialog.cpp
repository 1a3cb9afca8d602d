#include "ui/Address_Import_Dialog.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "base/Session_State.h"
#include "db/Project_Session.h"
#include "ui/Address_Import_Faults.h"
#include "ui/Address_Import_Message.h"
#include "ui/Address_Import_Preview.h"
#include "ui/Address_Import_Progress.h"
#include "ui/Address_Import_Settings.h"
#include "ui/Ets_Reading.h"
#include "ui/File_Dialog.h"
#include "ui/Theme.h"
#include "ui/Wait_Cursor.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QStackedWidget>

#include <optional>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr QSize cSize{1240, 720};

QHBoxLayout* rowIn(QWidget* widget) {
  auto* const layout = new QHBoxLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  return layout;
}

/// The one local file among what is dragged; empty when there is none.
QString fileIn(const QMimeData& data) {
  return data.urls().size() == 1 ? data.urls().first().toLocalFile() : QString();
}

} // namespace

Address_Import_Dialog::Address_Import_Dialog(Project_Session& session, App_Settings& settings, const QString& folder,
                                             QWidget* parent)
    : QDialog(parent),
      mSession(session),
      mSettings(settings),
      mReading(new Ets_Reading(this)),
      mFolder(folder),
      mPath(new QLineEdit),
      mFileInfo(new QLabel),
      mMessage(new Address_Import_Message),
      mOptions(new Address_Import_Settings),
      mPages(new QStackedWidget),
      mPreview(new Address_Import_Preview(session.state())),
      mProgress(new Address_Import_Progress(*mReading)),
      mFaults(new Address_Import_Faults),
      mTicked(new QLabel) {
  setWindowTitle(tr("Adressen importieren"));
  setAcceptDrops(true);
  mPages->addWidget(mPreview);
  mPages->addWidget(mProgress);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(cGroupGap, cGroupGap, cGroupGap, cGroupGap);
  layout->setSpacing(cGroupGap);
  layout->addWidget(makeFileRow());
  layout->addWidget(mMessage);
  layout->addWidget(mOptions);
  layout->addWidget(mPages, 1);
  layout->addWidget(mFaults);
  layout->addWidget(makeButtons());
  mCancel->setDefault(true); // it has to stand in the dialog for that

  connect(mOptions, &Address_Import_Settings::optionsChanged, this, &Address_Import_Dialog::onOptionsChanged);
  connect(mOptions, &Address_Import_Settings::readerOptionsChanged, this, &Address_Import_Dialog::read);
  connect(mReading, &Ets_Reading::finished, this, &Address_Import_Dialog::onRead);
  connect(mPreview, &Address_Import_Preview::ticksChanged, this, &Address_Import_Dialog::updateButtons);
  connect(mPreview, &Address_Import_Preview::stepRequested, this, &Address_Import_Dialog::onBrowse);
  connect(&session, &Project_Session::aboutToClose, this, &QDialog::reject);
  connect(&session.state(), &Session_State::operatingModeChanged, this, &Address_Import_Dialog::updateButtons);
  connect(mProgress, &Address_Import_Progress::worthShowing, this, [this] { mPages->setCurrentWidget(mProgress); });
  connect(mProgress, &Address_Import_Progress::cancelRequested, this, &Address_Import_Dialog::onCancelReading);

  resize(cSize);
  restoreGeometry(settings.viewState(QStringLiteral("ui:mImportDialog")));
  mPreview->restoreState(settings);
  showGroups(nullptr);
}

Address_Import_Dialog::~Address_Import_Dialog() {
  mPath->disconnect(this); // it tells that it lost the focus when it goes
}

QWidget* Address_Import_Dialog::makeFileRow() {
  auto* const row = new QWidget;
  auto* const layout = rowIn(row);
  auto* const label = new QLabel(tr("&Datei:"));
  label->setBuddy(mPath);
  mPath->setObjectName(QStringLiteral("mPath"));
  mPath->setToolTip(tr("Export der ETS: XML (ETS 5 und 6), ESF oder CSV. Die Datei kann auch in dieses Fenster gezogen "
                       "werden."));
  mPath->setAcceptDrops(false); // a file dropped here is one for the dialog
  mPath->installEventFilter(this);
  connect(mPath, &QLineEdit::editingFinished, this, &Address_Import_Dialog::onPathEdited);
  mBrowse = new QPushButton(tr("D&urchsuchen…"));
  connect(mBrowse, &QPushButton::clicked, this, &Address_Import_Dialog::onBrowse);
  Theme::setTextRole(*mFileInfo, Theme::Role::SecondaryText);
  mFileInfo->hide();
  layout->addWidget(label);
  layout->addWidget(mPath, 1);
  layout->addWidget(mFileInfo);
  layout->addWidget(mBrowse);
  return row;
}

QWidget* Address_Import_Dialog::makeButtons() {
  auto* const row = new QWidget;
  auto* const layout = rowIn(row);
  mTicked->setObjectName(QStringLiteral("mTicked"));
  mImport = new QPushButton;
  mImport->setObjectName(QStringLiteral("mImport"));
  mCancel = new QPushButton(tr("Abbre&chen"));
  connect(mImport, &QPushButton::clicked, this, &Address_Import_Dialog::onImport);
  connect(mCancel, &QPushButton::clicked, this, &QDialog::reject);
  layout->addWidget(mTicked);
  layout->addStretch(1);
  layout->addWidget(mImport);
  layout->addWidget(mCancel);
  return row;
}

/// Return in the path reads the file and must not press the default button.
bool Address_Import_Dialog::eventFilter(QObject* watched, QEvent* event) {
  if (watched == mPath && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
      load(mPath->text());
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

void Address_Import_Dialog::dragEnterEvent(QDragEnterEvent* event) {
  // A "move" would have the other program delete the file afterwards.
  if (!fileIn(*event->mimeData()).isEmpty() && event->possibleActions().testFlag(Qt::CopyAction)) {
    event->setDropAction(Qt::CopyAction);
    event->accept();
  }
}

void Address_Import_Dialog::dropEvent(QDropEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->accept();
  load(fileIn(*event->mimeData()));
}

void Address_Import_Dialog::onBrowse() {
  const QString filter =
      tr("ETS-Export") + QStringLiteral(" (*.xml *.esf *.csv);;") + tr("Alle Dateien") + QStringLiteral(" (*)");
  const QString path = File_Dialog::chooseOpenFile(this, tr("Adressen importieren"), mFolder, filter);
  if (!path.isEmpty() && isVisible()) {
    load(path);
  }
}

void Address_Import_Dialog::onPathEdited() {
  if (isVisible() && !mPath->text().trimmed().isEmpty() && QFileInfo(mPath->text()) != QFileInfo(mLoaded)) {
    load(mPath->text());
  }
}

void Address_Import_Dialog::load(const QString& path) {
  const QString trimmed = path.trimmed();
  if (trimmed.isEmpty()) {
    return;
  }
  mLoaded = QDir::cleanPath(QFileInfo(trimmed).absoluteFilePath());
  mFolder = QFileInfo(mLoaded).absolutePath();
  mPath->setText(QDir::toNativeSeparators(mLoaded));
  mGroups = nullptr;
  mChoices.clear();
  read();
}

void Address_Import_Dialog::read() {
  if (mLoaded.isEmpty()) {
    return;
  }
  mMessage->setError({});
  mReading->start(mLoaded, mOptions->readerOptions());
  mProgress->start(QFileInfo(mLoaded).fileName());
  updateButtons();
}

void Address_Import_Dialog::onCancelReading() {
  mReading->stop();
  showGroups(nullptr);
  mMessage->setNotice(tr("Das Lesen wurde abgebrochen."));
}

void Address_Import_Dialog::onRead(const std::shared_ptr<const Ets_Groups>& groups, const QString& error) {
  showGroups(error.isEmpty() ? groups : nullptr);
  if (!mGroups) {
    mMessage->setError(tr("Aus \"%1\" kann nichts importiert werden. %2").arg(QFileInfo(mLoaded).fileName(), error));
  }
}

void Address_Import_Dialog::showGroups(const std::shared_ptr<const Ets_Groups>& groups) {
  const bool hadFocus = mProgress->stop();
  mPages->setCurrentWidget(mPreview);
  noteChoices();
  mGroups = groups;
  if (mGroups) {
    mFileInfo->setText(Address_Import_Settings::formatText(mGroups->mFormat));
    mFileInfo->show();
    mOptions->setFormat(mGroups->mFormat);
    compare();
  } else {
    mFileInfo->hide();
    showEmpty();
  }
  if (hadFocus && mGroups) {
    mPreview->enterRows();
  } else if (hadFocus) {
    mPath->setFocus();
  }
  mFaults->setGroups(mGroups.get());
  updateButtons();
}

/// Ticks set by hand outlive another comparison of the same file.
void Address_Import_Dialog::noteChoices() {
  if (mGroups) {
    mChoices.note(mPreview->plan());
  }
}

void Address_Import_Dialog::onOptionsChanged() {
  noteChoices();
  compare();
}

void Address_Import_Dialog::compare() {
  if (!mGroups || !mSession.isOpen()) {
    return;
  }
  mMessage->setError({});
  const Wait_Cursor wait;
  Address_Import_Plan plan = Address_Import::compare(mSession.database(), *mGroups, mOptions->options());
  mChoices.applyTo(plan);
  mPreview->setPlan(std::move(plan));
}

void Address_Import_Dialog::onImport() {
  if (!mSession.isOpen() || mReading->isRunning()) {
    return;
  }
  std::optional<Wait_Cursor> wait(std::in_place);
  const Edit_Result edit = Address_Import::apply(mSession, mPreview->plan(), mResult);
  wait.reset();
  if (edit) {
    accept();
  } else {
    mMessage->setError(tr("Nichts wurde importiert. %1").arg(edit.mError));
  }
}

void Address_Import_Dialog::showEmpty() {
  mMessage->setError({});
  mPreview->setEmpty(tr("Hier steht, was ein Export der ETS am Projekt ändern würde, bevor etwas geschieht: neue, "
                        "geänderte und entfallene Gruppenadressen."),
                     tr("Datei &wählen…"));
}

void Address_Import_Dialog::updateButtons() {
  const Address_Import_Plan& plan = mPreview->plan();
  const qsizetype ticked = plan.tickedCount();
  QString reason;
  if (mSession.state().operatingMode()) {
    reason = Session_State::operatingModeRefusal();
  } else if (mReading->isRunning()) {
    reason = tr("Die Datei wird noch gelesen.");
  } else if (!mGroups) {
    reason = tr("Zuerst eine Datei wählen.");
  } else if (ticked == 0) {
    reason = plan.size() == 0 ? tr("Es gibt nichts zu importieren.") : tr("Keine Zeile ist angehakt.");
  }
  mImport->setEnabled(reason.isEmpty());
  mImport->setToolTip(reason);
  mImport->setText(ticked > 0 ? tr("%1 überneh&men").arg(Decimal_Text::count(ticked)) : tr("I&mportieren"));

  const qsizetype deleted = plan.tickedCount(Address_Import_Row::Kind::Vanished);
  Theme::setTextRole(*mTicked, deleted > 0 ? Theme::Role::Warning : Theme::Role::SecondaryText);
  mTicked->setText(deleted == 1  ? tr("1 Adresse wird gelöscht.")
                   : deleted > 1 ? tr("%1 Adressen werden gelöscht.").arg(Decimal_Text::count(deleted))
                                 : QString());
}

void Address_Import_Dialog::done(int result) {
  mReading->stop();
  mProgress->stop();
  mPreview->saveState(mSettings);
  mSettings.setViewState(QStringLiteral("ui:mImportDialog"), saveGeometry());
  QDialog::done(result);
}
