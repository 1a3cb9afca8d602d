#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// The boxes that tell or ask something: the only ones in the program, so that an assistant's tool call never hangs on
/// one. While a tool call runs they show nothing, keep the text as the session's suppressed message (in place of an
/// earlier one) and answer the default. The text is plain text always. `parent` may be null.
namespace Message_Box {

enum class Answer { Yes, No, Cancel };

void showMessage(QWidget* parent, const QString& text);

/// True for "Ja" only; Escape and the window's closing are "Nein".
bool askYesNo(QWidget* parent, const QString& text, bool defaultAnswer = false);

/// Escape and the window's closing are "Abbrechen".
Answer askYesNoCancel(QWidget* parent, const QString& text, Answer defaultAnswer);

/// A question with buttons of its own; answers the index of the one that was pressed. The last is the one of Escape and
/// of the window's closing, and the answer while a tool call runs.
int choose(QWidget* parent, const QString& text, const QStringList& buttons, qsizetype defaultButton = 0);

} // namespace Message_Box
