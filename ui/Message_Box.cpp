#include "ui/Message_Box.h"

#include "base/Session_State.h"
#include "ui/Message_Dialog.h"

#include <QApplication>
#include <QPointer>

#include <memory>
#include <utility>
#include <vector>

namespace {

using Message_Box::Answer;

QString tr(const char* text) {
  return QCoreApplication::translate("Message_Box", text);
}

/// True when a tool call runs; then the text is kept for it.
bool suppress(const QString& text) {
  Session_State& state = Session_State::process();
  if (state.toolCallRunning()) {
    state.setSuppressedMessage(text);
  }
  return state.toolCallRunning();
}

struct Button {
  QString mText;
  int mAnswer = 0;

  Button(const QString& text, int answer) : mText(text), mAnswer(answer) {}
  Button(const QString& text, Answer answer) : Button(text, static_cast<int>(answer)) {}
};

/// The last button is the one of Escape.
int show(QWidget* parent, const QString& text, const QString& icon, const std::vector<Button>& buttons,
         int defaultAnswer) {
  const int escape = buttons.back().mAnswer;
  QWidget* const owner = parent ? parent->window() : QApplication::activeWindow();
  // The owner may go while the box is open, and takes the box with it.
  const QPointer<Message_Dialog> dialog = new Message_Dialog(owner, text, icon);
  for (const Button& button : buttons) {
    dialog->addButton(button.mText, button.mAnswer, button.mAnswer == defaultAnswer, button.mAnswer == escape);
  }
  const int result = dialog->exec();
  if (!dialog) {
    return escape;
  }
  delete dialog;
  return result;
}

Answer ask(QWidget* parent, const QString& text, const QString& icon, const std::vector<Button>& buttons,
           Answer defaultAnswer) {
  return static_cast<Answer>(show(parent, text, icon, buttons, static_cast<int>(defaultAnswer)));
}

} // namespace

void Message_Box::showMessage(QWidget* parent, const QString& text) {
  if (!suppress(text)) {
    ask(parent, text, QStringLiteral("info_white"), {{tr("&OK"), Answer::Yes}}, Answer::Yes);
  }
}

bool Message_Box::askYesNo(QWidget* parent, const QString& text, bool defaultAnswer) {
  if (suppress(text)) {
    return defaultAnswer;
  }
  const Answer answer =
      ask(parent, text, QStringLiteral("question_white"), {{tr("&Ja"), Answer::Yes}, {tr("&Nein"), Answer::No}},
          defaultAnswer ? Answer::Yes : Answer::No);
  return answer == Answer::Yes;
}

Message_Box::Answer Message_Box::askYesNoCancel(QWidget* parent, const QString& text, Answer defaultAnswer) {
  if (suppress(text)) {
    return defaultAnswer;
  }
  return ask(parent, text, QStringLiteral("question_white"),
             {{tr("&Ja"), Answer::Yes}, {tr("&Nein"), Answer::No}, {tr("&Abbrechen"), Answer::Cancel}}, defaultAnswer);
}

int Message_Box::choose(QWidget* parent, const QString& text, const QStringList& buttons, qsizetype defaultButton) {
  std::vector<Button> shown;
  for (const QString& button : buttons) {
    shown.emplace_back(button, static_cast<int>(shown.size()));
  }
  return suppress(text) ? shown.back().mAnswer
                        : show(parent, text, QStringLiteral("question_white"), shown, static_cast<int>(defaultButton));
}
