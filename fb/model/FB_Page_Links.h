#pragma once

#include "db/Address_Usage_Watch.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QHash>
#include <QList>

/// On which other logic pages the binding of a pin is used too: of an input where it is written, of an output where it
/// is read; where it is only used on the same side there, those. Stays true while the project is edited. The session
/// outlives the links.
class FB_Page_Links : public QObject {
  Q_OBJECT

public:
  /// Another page, and the first of its pins there.
  struct Target {
    QUuid mPage;
    QString mCaption;
    FB_Pin_Ref mPin; ///< of a block's disabling address: its first input
    QString mText;   ///< "Und: Eingang 1"
    friend bool operator==(const Target&, const Target&) = default;
  };

  explicit FB_Page_Links(Project_Session& session, QObject* parent = nullptr);

  /// In the order of the pages; empty for a pin that is unbound or not there.
  [[nodiscard]] QList<Target> targets(const FB_Pin_Ref& pin);
  /// "Erdgeschoss"; "Technik, Außen"; "Technik, Außen, +3"; empty for none.
  [[nodiscard]] QString text(const FB_Pin_Ref& pin);

signals:
  /// What is linked may be other pages now.
  void changed();

private:
  /// The first use on each other page.
  [[nodiscard]] std::vector<Address_Use> linked(const FB_Pin_Ref& pin);

  Project_Session& mSession;
  Address_Usage_Watch mWatch;
  QHash<FB_Pin_Ref, QString> mTexts; ///< those that were asked for since the last change
};
