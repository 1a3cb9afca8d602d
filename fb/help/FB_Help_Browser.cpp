#include "fb/help/FB_Help_Browser.h"

#include "fb/model/FB_Help.h"
#include "ui/Theme.h"

#include <QTextDocument>

namespace {

constexpr int cMargin = 12;

using Theme::Role;

QString colour(Role role) {
  return Theme::color(role).name();
}

QString pageStyle() {
  return QStringLiteral("h1 { font-size: x-large; margin: 0px 0px 4px 0px; }"
                        "h2 { font-size: large; margin: 16px 0px 6px 0px; }"
                        "h3 { font-size: medium; margin: 12px 0px 4px 0px; }"
                        "p { margin: 0px 0px 8px 0px; }"
                        "p.note { color: %1; margin: 4px 0px 8px 0px; }"
                        "a { color: %2; text-decoration: none; }"
                        "li { margin: 0px 0px 4px 0px; }"
                        "code, pre { font-family: 'Courier New', monospace; }"
                        "table { border-collapse: collapse; margin: 6px 0px 8px 0px; }"
                        "th { text-align: left; white-space: nowrap; background-color: %3; color: %1; }"
                        "td, th { padding: 4px 8px; border: 1px solid %4; }")
      .arg(colour(Role::SecondaryText), colour(Role::Link), colour(Role::Bar), colour(Role::Border));
}

} // namespace

FB_Help_Browser::FB_Help_Browser(QWidget* parent) : QTextBrowser(parent) {
  setObjectName(QStringLiteral("fb:mHelpPage"));
  setAccessibleName(tr("Hilfeseite"));
  setOpenExternalLinks(false);
  document()->setDefaultStyleSheet(pageStyle());
  document()->setDocumentMargin(cMargin);
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& source) {
    setExtraSelections({});
    emit pageChanged(source.fileName()); // source() still tells the last one
  });
}

void FB_Help_Browser::showPage(const QString& page) {
  setSource(QUrl(QStringLiteral("help:/") + page));
}

QString FB_Help_Browser::page() const {
  return source().fileName();
}

QVariant FB_Help_Browser::loadResource(int type, const QUrl& name) {
  if (type != QTextDocument::HtmlResource) {
    return {};
  }
  const QString html = FB_Help::html(name.fileName());
  return html.isEmpty()
             ? QStringLiteral("<h1>%1</h1><p>%2</p>")
                   .arg(tr("Keine Hilfe"),
                        tr("Eine Seite dieses Namens gibt es nicht: %1").arg(name.fileName().toHtmlEscaped()))
             : html;
}

int FB_Help_Browser::mark(const QStringList& texts) {
  QList<QTextEdit::ExtraSelection> marks;
  for (const QString& text : texts) {
    QTextCursor at(document());
    while (!text.isEmpty() && !(at = document()->find(text, at)).isNull()) {
      QTextEdit::ExtraSelection mark;
      mark.cursor = at;
      mark.format.setBackground(Theme::color(Role::Match));
      marks.append(mark);
    }
  }
  setExtraSelections(marks);
  return static_cast<int>(marks.size());
}

bool FB_Help_Browser::findNext(const QString& text, bool isBackward) {
  const QTextDocument::FindFlags flags = isBackward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (text.isEmpty() || find(text, flags)) {
    return !text.isEmpty();
  }
  const QTextCursor before = textCursor();
  moveCursor(isBackward ? QTextCursor::End : QTextCursor::Start);
  if (find(text, flags)) {
    return true;
  }
  setTextCursor(before);
  return false;
}
