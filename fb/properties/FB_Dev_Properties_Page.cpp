#include "fb/properties/FB_Dev_Properties_Page.h"

#include "db/Edit_Scope.h"
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Follower.h"
#include "fb/model/FB_Types.h"
#include "fb/properties/FB_Address_Edit.h"
#include "ui/Elided_Label.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int cGap = 8;
constexpr int cSmallGap = 4;
constexpr int cIndentation = 12;
constexpr int cNoticeIcon = 16;

QTreeWidgetItem* addSection(QTreeWidget& tree, const QString& title) {
  auto* const section = new QTreeWidgetItem(&tree, {title});
  QFont bold = tree.font();
  bold.setBold(true);
  section->setFont(0, bold);
  section->setFirstColumnSpanned(true);
  section->setExpanded(true);
  return section;
}

} // namespace

FB_Dev_Properties_Page::FB_Dev_Properties_Page(Project_Session& session, QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mFollower(new FB_Page_Follower(session.database().mFbPages, this)),
      mHeading(new QLabel(tr("Baustein"))),
      mSubject(new Elided_Label),
      mNotice(new QWidget),
      mNoticeText(new QLabel),
      mTree(new QTreeWidget),
      mGeneral(addSection(*mTree, tr("Allgemein"))),
      mParameters(addSection(*mTree, tr("Parameter"))),
      mHint(new QTreeWidgetItem(mParameters)) {
  QFont bold = font();
  bold.setBold(true);
  mHeading->setFont(bold);
  Theme::setTextRole(*mSubject, Theme::Role::SecondaryText);
  auto* const heading = new QHBoxLayout;
  heading->setSpacing(cGap);
  heading->addSpacing(cGap);
  heading->addWidget(mHeading);
  heading->addWidget(mSubject, 1);
  heading->addSpacing(cGap);

  auto* const sign = new QLabel;
  sign->setPixmap(Theme::icon(QStringLiteral("warning_white")).pixmap(cNoticeIcon));
  mNoticeText->setWordWrap(true);
  mNoticeText->setTextFormat(Qt::PlainText);
  auto* const notice = new QHBoxLayout(mNotice);
  notice->setContentsMargins(0, 0, 0, 0);
  mNotice->setContentsMargins(cGap, 0, cGap, 0);
  notice->addWidget(sign, 0, Qt::AlignTop);
  notice->addWidget(mNoticeText, 1);
  mNotice->hide();

  mTree->setColumnCount(2);
  mTree->header()->hide();
  mTree->header()->setStretchLastSection(true);
  mTree->setIndentation(cIndentation);
  mTree->setSelectionMode(QAbstractItemView::NoSelection);
  mTree->setFocusPolicy(Qt::NoFocus); // Tab goes from editor to editor
  mTree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  mTree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  mTree->setTextElideMode(Qt::ElideRight);
  mTree->setAccessibleName(tr("Eigenschaften des Bausteins"));
  mHint->setFirstColumnSpanned(true);
  mHint->setForeground(0, Theme::color(Theme::Role::SecondaryText));

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cSmallGap);
  layout->addSpacing(cSmallGap);
  layout->addLayout(heading);
  layout->addWidget(mTree, 1);
  layout->addWidget(mNotice); // below, so that no row moves under the mouse
  buildButtons(*layout);
  buildGeneral();
  connectGeneral();

  connect(mFollower, &FB_Page_Follower::changed, this, &FB_Dev_Properties_Page::refresh);
  connect(&session.state(), &Session_State::operatingModeChanged, this, &FB_Dev_Properties_Page::refresh);
  // The controllers are no record of a page.
  connect(&session.history(), &History::changed, this, &FB_Dev_Properties_Page::showController);
  // What was told of an edit is no longer true.
  connect(&session.history(), &History::stepApplied, this, [this] { setNotice({}); });
  connect(&session, &Project_Session::closed, this, &FB_Dev_Properties_Page::clear);
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (mMergeField && now != mMergeField) {
      mMergeField = nullptr;
    }
    reveal(now);
  });
}

/// The focus leaves the editors while they go: nobody may be told any more.
FB_Dev_Properties_Page::~FB_Dev_Properties_Page() {
  disconnect(qApp, nullptr, this, nullptr);
  for (const auto& [editor, field] : mFields) {
    editor->widget().blockSignals(true);
  }
  for (FB_Dev_Properties_Editor* const editor : editors()) {
    editor->widget().blockSignals(true);
  }
}

void FB_Dev_Properties_Page::buildButtons(QVBoxLayout& layout) {
  mGenerate = new QPushButton(Theme::icon(QStringLiteral("main_group")), tr(" Variablen erzeugen (Strg+G)"));
  mGenerate->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
  mPageProperties = new QToolButton;
  mPageProperties->setIcon(Theme::icon(QStringLiteral("gear_white")));
  mPageProperties->setToolTip(tr("Eigenschaften der Seite"));
  mPageProperties->setAccessibleName(tr("Eigenschaften der Seite"));
  mPageProperties->setFocusPolicy(Qt::StrongFocus);
  mOpenEditor = new QPushButton;
  auto* const line = new QHBoxLayout;
  line->setSpacing(cGap);
  line->addSpacing(cGap);
  line->addWidget(mGenerate);
  line->addStretch();
  line->addWidget(mPageProperties);
  line->addSpacing(cGap);
  auto* const second = new QHBoxLayout;
  second->addSpacing(cGap);
  second->addWidget(mOpenEditor);
  second->addStretch();
  layout.addLayout(line);
  layout.addLayout(second);
  connect(mGenerate, &QPushButton::clicked, this, &FB_Dev_Properties_Page::onGenerateVariable_clicked);
  connect(mPageProperties, &QToolButton::clicked, this, &FB_Dev_Properties_Page::onPageProperties_clicked);
  connect(mOpenEditor, &QPushButton::clicked, this, [this] { emit editorRequested(mBlocks.value(0)); });
}

FB_Dev_Properties_Page::Blocks FB_Dev_Properties_Page::records() const {
  Blocks blocks;
  blocks.reserve(static_cast<size_t>(mBlocks.size()));
  for (const QUuid& guid : mBlocks) {
    if (const DB_FB_Control* const block = std::as_const(mSession).database().mFbPages.child(guid)) {
      blocks.push_back(block);
    }
  }
  return blocks;
}

void FB_Dev_Properties_Page::showBlocks(FB_Page& page) {
  const QList<QUuid> blocks = page.selectedBlocks();
  if (mCanvas != &page || blocks != mBlocks) {
    finishTyping();
    const bool wasEmpty = isEmpty();
    if (mCanvas) {
      disconnect(mCanvas, &QObject::destroyed, this, &FB_Dev_Properties_Page::clear);
    }
    mCanvas = &page;
    connect(mCanvas, &QObject::destroyed, this, &FB_Dev_Properties_Page::clear);
    mBlocks = blocks;
    mMergeField = nullptr;
    setNotice({});
    if (wasEmpty != isEmpty()) {
      emit emptyChanged();
    }
  }
  refresh();
}

void FB_Dev_Properties_Page::clear() {
  if (!isEmpty()) {
    mBlocks.clear();
    mMergeField = nullptr;
    setNotice({});
    clearParameters();
    emit emptyChanged();
  }
}

/// What was typed belongs to the blocks that were shown.
void FB_Dev_Properties_Page::finishTyping() {
  if (records().size() != static_cast<size_t>(mBlocks.size()) || isEmpty()) {
    return;
  }
  QList<FB_Dev_Properties_Editor*> all = editors();
  for (const auto& [editor, field] : mFields) {
    all.append(editor);
  }
  const auto typing = std::ranges::find_if(all, &FB_Dev_Properties_Editor::isTyping);
  if (typing != all.end()) {
    (*typing)->finishTyping();
  }
}

void FB_Dev_Properties_Page::refresh() {
  const Blocks blocks = records();
  if (blocks.empty() || !mCanvas) {
    return; // the page tells when its selection is another one
  }
  showHeading(blocks);
  showGeneral(blocks);
  showParameters(blocks);
  updateEnabled(blocks);
  updateColumns();
  if (std::exchange(mHasNewRows, false)) {
    orderTabs();
  }
}

void FB_Dev_Properties_Page::showHeading(const Blocks& blocks) {
  const int type = blocks.front()->mType;
  const bool isOneType = std::ranges::all_of(blocks, [type](const auto* block) { return block->mType == type; });
  const QString count = QLocale().toString(blocks.size());
  mSubject->setText(blocks.size() == 1 ? FB_Types::name(type)
                    : isOneType        ? tr("%1 × %2").arg(count, FB_Types::name(type))
                                       : tr("%1 Bausteine verschiedener Typen").arg(count));
}

bool FB_Dev_Properties_Page::edit(QWidget& field, const std::function<Edit_Result()>& change) {
  if (mMergeField != &field) {
    mMergeField = &field;
    mMerge = mSession.history().newMerge();
  }
  Edit_Result result;
  {
    const Edit_Scope scope(mSession.history(), Edit_Scope::Merge{mMerge});
    result = change();
  }
  if (result && mCanvas) {
    mCanvas->finish(result);
    for (const QUuid& guid : std::as_const(mBlocks)) {
      if (FB_Base* const block = mCanvas->blocks().find(guid)) {
        block->applyProperties();
      }
    }
  }
  {
    const QSignalBlocker blocker(mFollower);
    mFollower->flush();
  }
  setNotice(result.mError);
  refresh();
  return static_cast<bool>(result);
}

void FB_Dev_Properties_Page::setNotice(const QString& text) {
  mNoticeText->setText(text);
  mNotice->setVisible(!text.isEmpty());
  if (!text.isEmpty()) {
    emit statusText(text);
  }
}

void FB_Dev_Properties_Page::onGenerateVariable_clicked() {
  finishTyping(); // the key leaves the focus where it is
  if (mCanvas) {
    mCanvas->generateVariables(mBlocks);
  }
}

void FB_Dev_Properties_Page::onPageProperties_clicked() {
  finishTyping();
  if (mCanvas) {
    emit pagePropertiesRequested(mCanvas->pageGuid());
  }
}
