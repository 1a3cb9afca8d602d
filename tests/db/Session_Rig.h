#pragma once

#include "base/Session_State.h"
#include "db/Project_Session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

/// A project session in folders of its own: project files in `folder()`, working copies in a temporary directory
/// beside.
class Session_Rig {
public:
  Session_Rig() {
    Q_ASSERT(mFolder.isValid() && mTemp.isValid());
    qputenv("TMPDIR", mTemp.path().toLocal8Bit());
  }

  [[nodiscard]] QString path(const QString& name = QStringLiteral("Haus.zpro")) const { return mFolder.filePath(name); }
  [[nodiscard]] QString folder() const { return mFolder.path(); }
  [[nodiscard]] QString tempFolder() const { return mTemp.path(); }

  bool create() { return mSession.create(path(), {}); }

  DB_Address_Sub_Group* addAddress(const Group_Address& address, const QString& name) {
    Address_Tree& tree = mSession.database().mAddresses;
    if (!tree.mainGroup(address.main())) {
      auto main = std::make_unique<DB_Address_MainGroup>();
      main->mNumber = address.main();
      tree.add(std::move(main));
    }
    if (!tree.middleGroup(address.main(), address.middle())) {
      auto middle = std::make_unique<DB_Address_Middle_Group>();
      middle->mMainKey = tree.mainGroup(address.main())->mKey;
      middle->mNumber = address.middle();
      tree.add(std::move(middle));
    }
    auto sub = std::make_unique<DB_Address_Sub_Group>();
    sub->mMiddleKey = tree.middleGroup(address.main(), address.middle())->mKey;
    sub->mNumber = address.sub();
    sub->mName = name;
    return tree.add(std::move(sub));
  }

  [[nodiscard]] static QByteArray bytesOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

private:
  /// Beside each other, whatever the rig before has set as the temporary directory.
  [[nodiscard]] static QString pattern() {
    static const QString folder = QDir::tempPath();
    return folder + QStringLiteral("/studio-XXXXXX");
  }

public:
  Session_State mState;
  QTemporaryDir mFolder{pattern()};
  QTemporaryDir mTemp{pattern()};
  Project_Session mSession{mState};
};
