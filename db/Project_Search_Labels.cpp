#include "db/Project_Search_Labels.h"

#include "db/Page_Tree_Model.h"
#include "db/ProjectDatabase.h"

#include <QCoreApplication>

#include <array>

namespace {

using Project_Search::Field;
using Project_Search::Hit;
using Project_Search::Kind;

QString tr(const char* text) {
  return QCoreApplication::translate("Project_Search", text);
}

/// In the order of the kinds.
constexpr std::array cKinds = {QT_TRANSLATE_NOOP("Project_Search", "Hauptgruppe"),
                               QT_TRANSLATE_NOOP("Project_Search", "Mittelgruppe"),
                               QT_TRANSLATE_NOOP("Project_Search", "Adresse"),
                               QT_TRANSLATE_NOOP("Project_Search", "Variable"),
                               QT_TRANSLATE_NOOP("Project_Search", "Programmseite"),
                               QT_TRANSLATE_NOOP("Project_Search", "Baustein"),
                               QT_TRANSLATE_NOOP("Project_Search", "Visualisierungsseite"),
                               QT_TRANSLATE_NOOP("Project_Search", "Element")};

/// In the order of the fields.
constexpr std::array cFields = {
    QT_TRANSLATE_NOOP("Project_Search", "Adresse"),      QT_TRANSLATE_NOOP("Project_Search", "Name"),
    QT_TRANSLATE_NOOP("Project_Search", "Beschreibung"), QT_TRANSLATE_NOOP("Project_Search", "Titel"),
    QT_TRANSLATE_NOOP("Project_Search", "Kommentar"),    QT_TRANSLATE_NOOP("Project_Search", "Typ"),
    QT_TRANSLATE_NOOP("Project_Search", "Parameter %1")};

QString groupName(const ProjectDatabase& database, const QUuid& key) {
  const Address_Tree& tree = database.mAddresses;
  if (const DB_Address_Sub_Group* const sub = tree.subGroup(key)) {
    return sub->mName;
  }
  if (const DB_Address_Middle_Group* const middle = tree.middleGroup(key)) {
    return middle->mName;
  }
  const DB_Address_MainGroup* const main = tree.mainGroup(key);
  return main ? main->mName : QString();
}

template <class Page>
QString captionOf(const Page* page) {
  return page ? page->mCaption.simplified() : QString();
}

} // namespace

QString Project_Search_Labels::kind(Kind kind) {
  return tr(cKinds[static_cast<size_t>(kind)]);
}

QString Project_Search_Labels::icon(const ProjectDatabase& database, const Hit& hit) {
  switch (hit.mKind) {
  case Kind::MainGroup:
    return QStringLiteral("main_group");
  case Kind::MiddleGroup:
    return QStringLiteral("middle_group");
  case Kind::Address:
    return QStringLiteral("sub_group");
  case Kind::Variable:
    return QStringLiteral("io_internal_connection");
  case Kind::LogicPage:
  case Kind::VisuPage:
    return Page_Tree_Model::pageIcon(database, hit.mId);
  case Kind::Block:
  case Kind::Element:
    break;
  }
  return Page_Tree_Model::pageIcon(database, Project_Search::pageOf(database, hit));
}

QString Project_Search_Labels::place(const ProjectDatabase& database, const Project_Search::Result& result,
                                     const Hit& hit, const Address_Usage::Type_Name& typeName) {
  switch (hit.mKind) {
  case Kind::MainGroup:
  case Kind::MiddleGroup:
  case Kind::Address: {
    const QString address = Project_Search::addressText(database, hit.mId);
    const QString name = hit.mField == Field::Name ? QString() : groupName(database, hit.mId).simplified();
    return name.isEmpty() ? address : address + QLatin1Char(' ') + name;
  }
  case Kind::Variable:
    return Address_Usage::text(database, result.mVariables[static_cast<size_t>(hit.mIndex)].mFirst, typeName)
        .toString();
  case Kind::LogicPage:
    return captionOf(database.mFbPages.page(hit.mId));
  case Kind::VisuPage:
    return captionOf(database.mWidgetPages.page(hit.mId));
  case Kind::Block:
  case Kind::Element:
    break;
  }
  const auto anyPlace = hit.mKind == Kind::Block ? Address_Use::Place::Disable : Address_Use::Place::Element;
  const Address_Use owner{anyPlace, 0, Project_Search::pageOf(database, hit), hit.mId};
  const Address_Usage::Use_Text text = Address_Usage::text(database, owner, typeName);
  return text.mOwner.isEmpty() ? QString() : text.mPage.simplified() + QStringLiteral(" / ") + text.mOwner;
}

QString Project_Search_Labels::field(const Hit& hit) {
  const QString name = tr(cFields[static_cast<size_t>(hit.mField)]);
  return hit.mField == Field::Parameter ? name.arg(hit.mIndex + 1) : name;
}
