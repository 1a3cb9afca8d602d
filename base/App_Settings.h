#pragma once

#include <QByteArray>
#include <QSettings>
#include <QString>
#include <QStringList>

#include <memory>

/// The application's own settings, kept in the toolkit's settings store under the group "Settings".
///
/// A value equal to its default is not stored, a stored value outside its range reads as the default. Settings of a
/// project are records of the project, not here.
class App_Settings {
public:
  /// `file` names an INI file; empty for the user's own store.
  explicit App_Settings(const QString& file = {});

  /// Reason why a named settings file cannot be used (German), empty when it can.
  [[nodiscard]] QString error() const { return mError; }

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

  [[nodiscard]] QString lastProjectDir() const;
  void setLastProjectDir(const QString& dir);

  /// Port of the assistant server, 0 (off) to 65535.
  [[nodiscard]] int mcpPort() const;
  void setMcpPort(int port);

  void sync() { mStore->sync(); }

private:
  [[nodiscard]] QVariant value(const QString& key) const;
  void setValue(const QString& key, const QVariant& value, const QVariant& defaultValue);

  std::unique_ptr<QSettings> mStore;
  QString mError;
};
