#include "db/Page_Tree_Model.h"

#include "base/Session_State.h"
#include "db/Model_Roles.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"

#include <QMimeData>

#include <algorithm>
#include <utility>

namespace {

/// A branch's index carries this, a page's the row of its branch, a block's the row of its page above `cFirstPage`.
constexpr quintptr cIsBranch = Page_Tree_Model::cBranchCount;
constexpr quintptr cFirstPage = cIsBranch + 1;

template <class Page>
const Page* pageAt(const DB_Page_List<Page>& list, int row) {
  return row >= 0 && row < list.pages().size() ? &list.pages().at(row) : nullptr;
}

} // namespace

Page_Tree_Model::Page_Tree_Model(Project_Session& session, Block_Texts texts, QObject* parent)
    : QAbstractItemModel(parent),
      mSession(session),
      mTexts(std::move(texts)) {
  mFollow.setSingleShot(true);
  mFollow.setInterval(0);
  connect(&mFollow, &QTimer::timeout, this, &Page_Tree_Model::followBlocks);
  const DB_Page_List_Signals& logic = session.database().mFbPages;
  listenTo(logic);
  listenTo(session.database().mWidgetPages);
  connect(&logic, &DB_Page_List_Signals::childChanged, this, &Page_Tree_Model::onBlockChanged);
}

void Page_Tree_Model::listenTo(const DB_Page_List_Signals& list) {
  connect(&list, &DB_Page_List_Signals::structureAboutToChange, this, &Page_Tree_Model::beginResetModel);
  connect(&list, &DB_Page_List_Signals::structureChanged, this, &Page_Tree_Model::onStructureChanged);
  connect(&list, &DB_Page_List_Signals::pageChanged, this, &Page_Tree_Model::onPageChanged);
}

void Page_Tree_Model::onStructureChanged() {
  mShown.clear();
  mChanged.clear();
  endResetModel();
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

QUuid Page_Tree_Model::blockOf(const QModelIndex& index) const {
  const bool isBlock = index.isValid() && index.internalId() >= cFirstPage;
  const DB_FB_Page* const page = isBlock ? logicPage(index.parent()) : nullptr;
  return page ? blocksOf(*page).value(index.row()) : QUuid();
}

QUuid Page_Tree_Model::pageOf(const QModelIndex& index) const {
  const QUuid guid = guidOf(index);
  return guid.isNull() ? guidOf(index.parent()) : guid;
}

const DB_FB_Control* Page_Tree_Model::block(const QModelIndex& index) const {
  const QUuid guid = blockOf(index);
  return guid.isNull() ? nullptr : mSession.database().mFbPages.child(guid);
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

QModelIndex Page_Tree_Model::indexOfBlock(const QUuid& guid) const {
  const auto& list = mSession.database().mFbPages;
  const DB_FB_Control* const found = list.child(guid);
  const DB_FB_Page* const page = found ? list.page(found->mPageGuid) : nullptr;
  const qsizetype row = page ? blocksOf(*page).indexOf(guid) : -1;
  return row < 0 ? QModelIndex() : index(static_cast<int>(row), 0, indexOf(page->mGuid));
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
  if (!parent.isValid()) {
    return createIndex(row, column, cIsBranch);
  }
  const quintptr row0 = static_cast<quintptr>(parent.row());
  return createIndex(row, column, parent.internalId() == cIsBranch ? row0 : cFirstPage + row0);
}

QModelIndex Page_Tree_Model::parent(const QModelIndex& child) const {
  if (!child.isValid() || child.internalId() == cIsBranch) {
    return {};
  }
  const bool isBlock = child.internalId() >= cFirstPage;
  return isBlock ? createIndex(static_cast<int>(child.internalId() - cFirstPage), 0, quintptr(cLogicBranch))
                 : createIndex(static_cast<int>(child.internalId()), 0, cIsBranch);
}

int Page_Tree_Model::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) {
    return cBranchCount;
  }
  if (parent.internalId() != cIsBranch) {
    const DB_FB_Page* const page = logicPage(parent);
    return page ? static_cast<int>(blocksOf(*page).size()) : 0;
  }
  const ProjectDatabase& database = mSession.database();
  const bool isLogic = parent.row() == cLogicBranch;
  return static_cast<int>(isLogic ? database.mFbPages.pages().size() : database.mWidgetPages.pages().size());
}

int Page_Tree_Model::columnCount(const QModelIndex&) const {
  return 1;
}

QString Page_Tree_Model::captionOf(const QModelIndex& index) const {
  if (index.isValid() && index.internalId() >= cFirstPage) {
    const DB_FB_Control* const shown = block(index);
    return shown ? blockText(*shown) : QString();
  }
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
    if (const DB_FB_Control* const shown = block(index)) {
      return blockToolTip(*shown);
    }
    return Model_Roles::toolTip(captionOf(index));
  case Model_Roles::cIconName: {
    if (index.internalId() >= cFirstPage) {
      return QStringLiteral("block_white");
    }
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
  const bool isBranch = index.internalId() == cIsBranch;
  const bool isBlock = index.internalId() >= cFirstPage;
  const bool isLogic = isBranch ? index.row() == cLogicBranch : index.internalId() == cLogicBranch;
  const bool mayEdit = !mSession.state().operatingMode();
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  flags.setFlag(Qt::ItemNeverHasChildren, !isBranch && !isLogic);
  flags.setFlag(Qt::ItemIsEditable, !isBranch && !isBlock && mayEdit);
  flags.setFlag(Qt::ItemIsDragEnabled, !isBranch && isLogic && mayEdit);
  flags.setFlag(Qt::ItemIsDropEnabled, isBranch && isLogic && mayEdit);
  return flags;
}

bool Page_Tree_Model::setData(const QModelIndex& index, const QVariant& value, int role) {
  const QUuid guid = guidOf(index);
  if (guid.isNull() || role != Qt::EditRole) {
    return false;
  }
  return value.toString() == captionOf(index) || rename(guid, value.toString());
}

QStringList Page_Tree_Model::mimeTypes() const {
  return {QStringLiteral("application/x-quarna-studio-logic-page")};
}

QMimeData* Page_Tree_Model::mimeData(const QModelIndexList& indexes) const {
  const DB_FB_Page* const page = logicPage(indexes.value(0));
  if (!page) {
    return nullptr;
  }
  auto* const data = new QMimeData;
  data->setData(mimeTypes().constFirst(), page->mGuid.toByteArray());
  return data;
}

/// Null when it is no page of this project.
QUuid Page_Tree_Model::draggedPage(const QMimeData* data) const {
  const QUuid guid = data ? QUuid::fromString(QLatin1String(data->data(mimeTypes().constFirst()))) : QUuid();
  return mSession.database().mFbPages.page(guid) ? guid : QUuid();
}

bool Page_Tree_Model::canDropMimeData(const QMimeData* data, Qt::DropAction action, int, int,
                                      const QModelIndex& parent) const {
  const bool isBranch = parent.isValid() && parent.internalId() == cIsBranch && parent.row() == cLogicBranch;
  return isBranch && action == Qt::MoveAction && !draggedPage(data).isNull();
}

bool Page_Tree_Model::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                   const QModelIndex& parent) {
  if (!canDropMimeData(data, action, row, column, parent)) {
    return false;
  }
  const QUuid page = draggedPage(data);
  const int from = indexOf(page).row();
  const int before = row < 0 ? rowCount(parent) : row;
  emit moveRequested(page, before > from ? before - 1 : before);
  return true;
}
