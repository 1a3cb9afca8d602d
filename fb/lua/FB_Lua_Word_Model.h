#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

/// The words that a script may hold, one a row: what is typed, and what it means. First those that are always the same,
/// then those of the script itself.
class FB_Lua_Word_Model : public QAbstractTableModel {
  Q_OBJECT

public:
  static constexpr int cNameRole = Qt::UserRole + 1;

  explicit FB_Lua_Word_Model(QObject* parent = nullptr);

  /// Takes only what is not there already.
  void setScriptWords(const QStringList& words);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
  struct Row {
    QString mName;
    QString mSignature;
    QString mText;
  };
  std::vector<Row> mFixed;
  QStringList mWords;
};
