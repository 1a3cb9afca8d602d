#pragma once

#include "app/Lifecycle_Dialogs.h"

#include <QStringList>

#include <functional>

/// Answers the lifecycle's questions from a list and writes down everything it was asked and told, in order. A question
/// beyond the list is answered with the most harmless answer and shows up in the transcript all the same.
class Scripted_Dialogs : public Lifecycle_Dialogs {
public:
  bool askYesNo(const QString& text) override {
    mTranscript.append(QStringLiteral("Ja/Nein: ") + text);
    return next() == u"Ja";
  }
  Message_Box::Answer askYesNoCancel(const QString& text, Message_Box::Answer) override {
    mTranscript.append(QStringLiteral("Ja/Nein/Abbrechen: ") + text);
    const QString answer = next();
    return answer == u"Ja"     ? Message_Box::Answer::Yes
           : answer == u"Nein" ? Message_Box::Answer::No
                               : Message_Box::Answer::Cancel;
  }
  /// Only the first sentence is written down; what else the text says has a test of its own.
  Recovery askRecovery(const QString& text, Recovery defaultAnswer) override {
    mRecoveryDefault = defaultAnswer;
    mTranscript.append(QStringLiteral("Wiederherstellen/Verwerfen/Abbrechen: ") + text.section(u'.', 0, 0));
    const QString answer = next();
    return answer == u"Wiederherstellen" ? Recovery::Restore
           : answer == u"Verwerfen"      ? Recovery::Discard
                                         : Recovery::Cancel;
  }
  void showMessage(const QString& text) override { mTranscript.append(QStringLiteral("Meldung: ") + text); }
  QString chooseOpenFile(const QString& title, const QString& path, const QString& filter) override {
    return chooseSaveFile(title, path, filter);
  }
  QString chooseSaveFile(const QString& title, const QString&, const QString& filter) override {
    mTranscript.append(QStringLiteral("Datei: %1, %2").arg(title, filter));
    return next();
  }
  void showProgress(const QString& text, int percent) override {
    mTranscript.append(QStringLiteral("%1 %2").arg(text).arg(percent));
    mIsProgressShown = true;
  }
  void hideProgress() override { mIsProgressShown = false; }

  QStringList mAnswers;    ///< a button's text or a path
  QStringList mTranscript; ///< cleared by the test
  bool mIsProgressShown = false;
  Recovery mRecoveryDefault = Recovery::Restore;
  std::function<void()> mWhileAsked; ///< runs while a question is open

private:
  QString next() {
    if (mWhileAsked) {
      mWhileAsked();
    }
    return mAnswers.isEmpty() ? QString() : mAnswers.takeFirst();
  }
};
