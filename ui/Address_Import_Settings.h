#pragma once

#include "db/Address_Import.h"
#include "db/Ets_Reader.h"

#include <QWidget>

#include <optional>

class QCheckBox;
class QComboBox;

/// How an export is read and compared with the project, and what is guessed of the types that an ESF does not name.
class Address_Import_Settings : public QWidget {
  Q_OBJECT

public:
  explicit Address_Import_Settings(QWidget* parent = nullptr);

  [[nodiscard]] Address_Import::Options options() const;
  [[nodiscard]] Ets_Reader::Options readerOptions() const;

  /// "XML", "ESF", "CSV".
  [[nodiscard]] static QString formatText(Ets_Groups::Format format);

  /// Of the file that is read; what only an ESF has is shown for that alone.
  void setFormat(std::optional<Ets_Groups::Format> format);

signals:
  /// The file is to be compared anew.
  void optionsChanged();
  /// The file is to be read anew.
  void readerOptionsChanged();

private:
  [[nodiscard]] QCheckBox* addOption(const QString& name, const QString& text, const QString& toolTip);
  [[nodiscard]] QWidget* makeFormat();
  [[nodiscard]] QComboBox* makeGuess(const QString& name, const QList<std::pair<Datapoint_Id, QString>>& types);
  [[nodiscard]] QWidget* makeGuesses();
  [[nodiscard]] static Datapoint_Id typeOf(const QComboBox& guess);

  QCheckBox* mNewOnly;
  QCheckBox* mKeepType;
  QCheckBox* mKeepComment;
  QCheckBox* mConnected;
  QComboBox* mFormat;
  QComboBox* mGuess1 = nullptr;
  QComboBox* mGuess2 = nullptr;
  QComboBox* mGuess4 = nullptr;
  QWidget* mGuesses;
};
