#pragma once

#include "fb/model/FB_Help_Search.h"

#include <QListWidget>

/// The pages of the help that a search has found, each with its title and a line of its text.
class FB_Help_Hits : public QListWidget {
  Q_OBJECT

public:
  explicit FB_Help_Hits(QWidget* parent = nullptr);

  void setHits(const QList<FB_Help_Search::Hit>& hits);
  /// Takes the keyboard to the first hit, and chooses it.
  void enter();

signals:
  void pageChosen(const QString& page);
};
