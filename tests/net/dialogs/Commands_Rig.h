#pragma once

#include "base/App_Settings.h"
#include "db/DB_Controller_Informations.h"
#include "net/Byte_Stream.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/Controller_Request.h"
#include "net/dialogs/Controller_Commands.h"
#include "net/dialogs/Exchange_Dialog.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"

#include <QApplication>
#include <QPushButton>

#include <functional>
#include <memory>
#include <utility>

/// Answers from a list and writes down what was asked and told; a question beyond the list is answered "Nein".
class Scripted_Questions : public Controller_Questions {
public:
  bool askYesNo(QWidget*, const QString& text) override {
    mTold.append(QStringLiteral("? ") + text);
    return next() == u"Ja";
  }
  void showMessage(QWidget*, const QString& text) override {
    mTold.append(text);
    if (mWhileTold) {
      mWhileTold();
    }
  }
  QString chooseOpenFile(QWidget*, const QString&, const QString&, const QString&) override { return next(); }
  QString chooseSaveFile(QWidget*, const QString&, const QString& suggestion, const QString&) override {
    mSuggestion = suggestion;
    return next();
  }

  QStringList mAnswers;
  QStringList mTold;
  QString mSuggestion;
  std::function<void()> mWhileTold;

private:
  QString next() { return mAnswers.isEmpty() ? QString() : mAnswers.takeFirst(); }
};

/// The commands of a window over a link to a peer that answers as the test says; counts the dialogs that are seen.
class Commands_Rig : public QObject {
public:
  Commands_Rig() {
    mRig.create();
    mPeer.mOnMessage = [this](const Scripted_Peer::Message& message) {
      if (message.mCommand == Controller_Command::Log_On) {
        mPeer.send(Controller_Command::Log_On_Accepted, DB_Controller_Informations().toData());
      } else if (mAnswers.contains(message.mCommand)) {
        for (const auto& [command, data] : mAnswers.value(message.mCommand)) {
          mPeer.send(command, data);
        }
      }
    };
    qApp->installEventFilter(this);
    mWindow.show();
  }

  bool goOnline() {
    mLink.connectTo(mPeer.connection());
    return QTest::qWaitFor([this] { return mLink.isOnline(); });
  }
  /// The answers to a command, in order.
  using Answers = QList<std::pair<quint32, QByteArray>>;
  static Answers stream(quint32 begin, quint32 data, const QByteArray& bytes) {
    Answers answers{{begin, Byte_Stream::announce(bytes).toData()}};
    for (const QByteArrayView chunk : Byte_Stream::chunks(bytes)) {
      answers.append({data, chunk.toByteArray()});
    }
    return answers;
  }
  static QByteArray text(const QString& text) { return Controller_Request::textPayload(text); }
  [[nodiscard]] bool isHeard(quint32 command, int times = 1) {
    return QTest::qWaitFor([&] { return mPeer.count(command) >= times; });
  }
  [[nodiscard]] bool isIdle() {
    return QTest::qWaitFor([this] { return !mCommands->isBusy() && !shown(); });
  }
  [[nodiscard]] bool isTold(const QString& text) {
    return QTest::qWaitFor([&] { return mQuestions.mTold.contains(text); });
  }

  /// The dialog in front; null without.
  [[nodiscard]] static QDialog* shown() {
    QDialog* front = nullptr;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      auto* const dialog = qobject_cast<QDialog*>(widget);
      if (dialog && dialog->isVisible() && (!front || qobject_cast<Exchange_Dialog*>(dialog))) {
        front = dialog;
      }
    }
    return front;
  }
  /// By its text without the sign of the access key.
  [[nodiscard]] static QPushButton* button(const QWidget& dialog, const QString& text) {
    for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
      if (button->text().remove(u'&') == text) {
        return button;
      }
    }
    return nullptr;
  }

  Session_Rig mRig;
  QTemporaryDir mFolder;
  App_Settings mSettings{mFolder.filePath(QStringLiteral("settings.ini"))};
  Scripted_Peer mPeer;
  QHash<quint32, Answers> mAnswers;
  Controller_Link mLink{mRig.mSession};
  QWidget mWindow;
  Scripted_Questions mQuestions;
  std::unique_ptr<Controller_Commands> mCommands =
      std::make_unique<Controller_Commands>(mRig.mSession, mSettings, mLink, mWindow, &mQuestions);
  int mDialogsSeen = 0;

protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Show && qobject_cast<QDialog*>(object)) {
      ++mDialogsSeen;
    }
    return false;
  }
};
