#pragma once

#include "base/Setting_Table.h"

#include <QByteArray>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <memory>

/// The application's own settings, kept in the toolkit's settings store under the group "Settings".
///
/// A value equal to its default is not stored, a stored value outside its range reads as the default. Settings of a
/// project are records of the project, not here.
class App_Settings : public QObject {
  Q_OBJECT

public:
  /// `file` names an INI file; empty for the user's own store.
  explicit App_Settings(const QString& file = {});

  /// Reason why a named settings file cannot be used (German), empty when it can.
  [[nodiscard]] QString error() const { return mError; }
  /// What happened to the user's own settings (German): they could not be read and are put aside; empty when they were
  /// read.
  [[nodiscard]] QString warning() const { return mWarning; }

  /// A switch that is on has the value 1. Out of range is the default.
  [[nodiscard]] int value(Setting setting) const;
  [[nodiscard]] bool isOn(Setting setting) const { return value(setting) != 0; }
  void setValue(Setting setting, int value);
  /// Of a setting that is a text.
  [[nodiscard]] QString text(Setting setting) const;
  void setText(Setting setting, const QString& text);

  /// Language of the studio's own texts, as a code like "de" or "pt_BR"; it takes effect at the next start.
  [[nodiscard]] QString languageDev() const;
  void setLanguageDev(const QString& code);

  [[nodiscard]] QByteArray windowState() const;
  void setWindowState(const QByteArray& state);
  [[nodiscard]] QByteArray windowGeometry() const;
  void setWindowGeometry(const QByteArray& geometry);

  /// State of a splitter or header, by its object name.
  [[nodiscard]] QByteArray viewState(const QString& name) const;
  void setViewState(const QString& name, const QByteArray& state);

  /// Most recent first, at most 12; a project stands in it once.
  [[nodiscard]] QStringList lastProjects() const;
  void addLastProject(const QString& path);
  void removeLastProject(const QString& path);

  /// In the order in which they were made favourites.
  [[nodiscard]] QStringList favoriteProjects() const;
  void setFavoriteProject(const QString& path, bool isFavorite);

  [[nodiscard]] QString lastProjectDir() const;
  void setLastProjectDir(const QString& dir);

  void sync() { mStore->sync(); }
  /// From now on nothing is stored: every setting stays what it is.
  void stopRemembering() { mIsRemembering = false; }

signals:
  void changed(Setting setting);
  /// The recent or the favourite projects.
  void projectListsChanged();

private:
  void putAsideWhenBroken();
  [[nodiscard]] QVariant stored(const QString& key) const;
  void store(const QString& key, const QVariant& value, const QVariant& defaultValue);
  [[nodiscard]] QStringList projects(const QString& key) const;
  void storeProjects(const QString& key, const QStringList& paths);

  std::unique_ptr<QSettings> mStore;
  QString mError;
  QString mWarning;
  bool mIsRemembering = true;
};
