#include "db/Page_Tree_Model.h"

#include "base/Session_State.h"
#include "db/Model_Roles.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"

#include <algorithm>

namespace {

/// A branch's index carries this, a page's the row of its branch.
constexpr quintptr cIsBranch = Page_Tree_Model::cBranchCount;

template <class Page>
const Page* pageAt(const DB_Page_List<Page>& list, int row) {
  return row >= 0 && row < list.pages().size() ? &list.pages().at(row) : nullptr;
}

} // namespace

Page_Tree_Model::Page_Tree_Model(Project_Session& session, QObject* parent)
    : QAbstractItemModel(parent),
      mSession(session) {
  listenTo(session.database().mFbPages);
  listenTo(session.database().mWidgetPages);
}

void Page_Tree_Model::listenTo(const DB_Page_List_Signals& list) {
  connect(&list, &DB_Page_List_Signals::structureAboutToChange, this, &Page_Tree_Model::beginResetModel);
  connect(&list, &DB_Page_List_Signals::structureChanged, this, &Page_Tree_Model::endResetModel);
  connect(&list, &DB_Page_List_Signals::pageChanged, this, &Page_Tree_Model::onPageChanged);
}

void Page_Tree_Model::onPageChanged(const QUuid& guid) {
  const QModelIndex changed = indexOf(guid);
  if (changed.isValid()) {
    emit dataChanged(changed, changed);
  }
}

const DB_FB_Page* Page_Tree_Model::logicPage(const QModelIndex& index) const {
  const bool isOurs = index.isValid() && index.internalId() == cLogicBranch;
  return isOurs ? pageAt(mSession.database().mFbPages, index.row()) : nullptr;
}

const DB_Widget_Page* Page_Tree_Model::visuPage(const QModelIndex& index) const {
  const bool isOurs = index.isValid() && index.internalId() == cVisuBranch;
  return isOurs ? pageAt(mSession.database().mWidgetPages, index.row()) : nullptr;
}

QUuid Page_Tree_Model::guidOf(const QModelIndex& index) const {
  if (const DB_FB_Page* const page = logicPage(index)) {
    return page->mGuid;
  }
  const DB_Widget_Page* const page = visuPage(index);
  return page ? page->mGuid : QUuid();
}

QModelIndex Page_Tree_Model::indexOf(const QUuid& guid) const {
  const ProjectDatabase& database = mSession.database();
  if (const DB_FB_Page* const page = database.mFbPages.page(guid)) {
    return createIndex(static_cast<int>(database.mFbPages.pages().indexOf(page)), 0, quintptr(cLogicBranch));
  }
  if (const DB_Widget_Page* const page = database.mWidgetPages.page(guid)) {
    return createIndex(static_cast<int>(database.mWidgetPages.pages().indexOf(page)), 0, quintptr(cVisuBranch));
  }
  return {};
}

QString Page_Tree_Model::controllerText(int number) const {
  const std::vector<DB_Controller>& controllers = mSession.database().mProject.mControllers;
  const auto found = std::find_if(controllers.begin(), controllers.end(), [number](const DB_Controller& controller) {
    return number == 0 ? controller.mIsMain : controller.mNumber == number;
  });
  const QString which = number == 0 ? tr("Hauptsteuerung") : QString::number(number);
  const bool hasName = found != controllers.end() && !found->mName.isEmpty();
  return hasName ? QStringLiteral("%1 (%2)").arg(which, found->mName) : which;
}

std::optional<Page_Tree_Model::Details> Page_Tree_Model::detailsOf(const QUuid& guid) const {
  const ProjectDatabase& database = mSession.database();
  const auto size = [](int width, int height) { return tr("%1 × %2 Pixel").arg(width).arg(height); };
  if (const DB_FB_Page* const page = database.mFbPages.page(guid)) {
    const qsizetype count = page->mChildren.size();
    return Details{guid,
                   page->mCaption,
                   tr("Programmseite"),
                   size(page->mWidth, page->mHeight),
                   count == 1 ? tr("1 Baustein") : tr("%1 Bausteine").arg(count),
                   controllerText(page->mControllerIndex)};
  }
  if (const DB_Widget_Page* const page = database.mWidgetPages.page(guid)) {
    const qsizetype count = page->mChildren.size();
    const QString format = page->mOrientation == DB_Widget_Page::Orientation::Landscape ? tr("Querformat")
                           : page->mOrientation == DB_Widget_Page::Orientation::PortraitScroll
                               ? tr("Hochformat, rollbar")
                               : tr("Hochformat");
    return Details{guid,
                   page->mCaption,
                   tr("Visualisierungsseite, %1").arg(format),
                   size(page->mWidth, page->mHeight),
                   count == 1 ? tr("1 Element") : tr("%1 Elemente").arg(count),
                   QString()};
  }
  return std::nullopt;
}

bool Page_Tree_Model::rename(const QUuid& guid, const QString& caption) {
  const Edit_Result result = Project_Edits::renamePage(mSession, guid, caption);
  if (!result) {
    emit refused(result.mError);
  }
  return static_cast<bool>(result);
}

QModelIndex Page_Tree_Model::index(int row, int column, const QModelIndex& parent) const {
  if (!hasIndex(row, column, parent)) {
    return {};
  }
  return createIndex(row, column, parent.isValid() ? static_cast<quintptr>(parent.row()) : cIsBranch);
}

QModelIndex Page_Tree_Model::parent(const QModelIndex& child) const {
  const bool isPage = child.isValid() && child.internalId() != cIsBranch;
  return isPage ? createIndex(static_cast<int>(child.internalId()), 0, cIsBranch) : QModelIndex();
}

int Page_Tree_Model::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) {
    return cBranchCount;
  }
  if (parent.internalId() != cIsBranch) {
    return 0;
  }
  const ProjectDatabase& database = mSession.database();
  const bool isLogic = parent.row() == cLogicBranch;
  return static_cast<int>(isLogic ? database.mFbPages.pages().size() : database.mWidgetPages.pages().size());
}

int Page_Tree_Model::columnCount(const QModelIndex&) const {
  return 1;
}

QString Page_Tree_Model::captionOf(const QModelIndex& index) const {
  if (const DB_FB_Page* const page = logicPage(index)) {
    return page->mCaption;
  }
  if (const DB_Widget_Page* const page = visuPage(index)) {
    return page->mCaption;
  }
  return index.row() == cLogicBranch ? tr("Programm") : tr("Visualisierung");
}

QString Page_Tree_Model::pageIcon(const ProjectDatabase& database, const QUuid& guid) {
  if (database.mFbPages.page(guid)) {
    return QStringLiteral("account_tree-white");
  }
  const DB_Widget_Page* const page = database.mWidgetPages.page(guid);
  if (!page) {
    return {};
  }
  return page->mOrientation == DB_Widget_Page::Orientation::Landscape ? QStringLiteral("page_horizontal")
                                                                      : QStringLiteral("page_vertical_white");
}

QVariant Page_Tree_Model::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) {
    return {};
  }
  switch (role) {
  case Qt::DisplayRole:
  case Qt::EditRole:
    return captionOf(index);
  case Qt::ToolTipRole:
    return Model_Roles::toolTip(captionOf(index));
  case Model_Roles::cIconName: {
    const QString icon = pageIcon(mSession.database(), guidOf(index));
    return icon.isEmpty() ? QVariant() : icon;
  }
  default:
    return {};
  }
}

QVariant Page_Tree_Model::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool isOurs = section == 0 && orientation == Qt::Horizontal && role == Qt::DisplayRole;
  return isOurs ? tr("Seite") : QVariant();
}

Qt::ItemFlags Page_Tree_Model::flags(const QModelIndex& index) const {
  if (!index.isValid()) {
    return Qt::NoItemFlags;
  }
  const bool isPage = index.internalId() != cIsBranch;
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  flags.setFlag(Qt::ItemNeverHasChildren, isPage);
  flags.setFlag(Qt::ItemIsEditable, isPage && !mSession.state().operatingMode());
  return flags;
}

bool Page_Tree_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  const QUuid guid = guidOf(index);
  if (guid.isNull() || role != Qt::EditRole) {
    return false;
  }
  return value.toString() == captionOf(index) || rename(guid, value.toString());
}
