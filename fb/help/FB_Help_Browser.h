#pragma once

#include <QStringList>
#include <QTextBrowser>

/// Shows a page of the help in the colours of the studio, with the way back through the pages seen before.
class FB_Help_Browser : public QTextBrowser {
  Q_OBJECT

public:
  explicit FB_Help_Browser(QWidget* parent = nullptr);

  void showPage(const QString& page);
  /// Empty before the first one.
  [[nodiscard]] QString page() const;
  /// Marks every place where one of the texts stands, in any case; how many. The marks go with the page.
  int mark(const QStringList& texts);
  /// Selects the next place of the text, from the end on again from the beginning; false when there is none.
  bool findNext(const QString& text, bool isBackward);

signals:
  void pageChanged(const QString& page);

protected:
  [[nodiscard]] QVariant loadResource(int type, const QUrl& name) override;
};
