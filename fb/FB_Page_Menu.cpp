// The menus of the page and of its blocks.
#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "db/Variable_Edits.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Commands.h"
#include "fb/FB_Variable_Name_Dialog.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "ui/Theme.h"

#include <QMenu>

namespace {

using Edge = FB_Page_Edits::Edge;

constexpr size_t cFewBindings = 3; ///< that have room in the menu itself

struct Edge_Row {
  Edge mEdge;
  const char* mText;
  const char* mIcon;
};

constexpr Edge_Row cEdges[] = {
    {Edge::Left, QT_TRANSLATE_NOOP("FB_Page", "&Links"), "dev_widget_sort_left"},
    {Edge::Right, QT_TRANSLATE_NOOP("FB_Page", "&Rechts"), "dev_widget_sort_right"},
    {Edge::Top, QT_TRANSLATE_NOOP("FB_Page", "&Oben"), "dev_widget_sort_top"},
    {Edge::Bottom, QT_TRANSLATE_NOOP("FB_Page", "&Unten"), "dev_widget_sort_bottom"},
};

/// A sign of the menu's access keys in a name is none.
QString plain(QString name) {
  return name.replace('&', QLatin1String("&&"));
}

QString nameOf(const DB_Address_Binding& binding) {
  const bool isAddress = binding.mKind == DB_Address_Binding::Kind::GroupAddress;
  const QString number = QStringLiteral("%1/%2/%3").arg(binding.mMain).arg(binding.mMiddle).arg(binding.mSub);
  return plain(isAddress ? (number + ' ' + binding.mName).trimmed() : binding.mName);
}

QMenu* makeMenu(QWidget* parent) {
  auto* const menu = new QMenu(parent);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  return menu;
}

} // namespace

void FB_Page::openPageMenu(const QPoint& screen) {
  const QPointF place = mapFromGlobal(QPointF(screen));
  QMenu* const menu = makeMenu(this);
  QAction* const all = menu->addAction(tr("Alles auswählen"), this, &FB_Page::selectAll);
  all->setEnabled(mCommands->selectAll()->isEnabled());
  QAction* const grid = menu->addAction(Theme::icon(QStringLiteral("grid_white-fit")), tr("Am Raster ausrichten"), this,
                                        &FB_Page::alignToGrid);
  grid->setEnabled(mayEdit() && mSettings.isOn(Setting::ShowGrid) && !selectedBlocks().isEmpty());
  QAction* const paste = menu->addAction(Theme::icon(QStringLiteral("paste_white")), tr("Einfügen"), this,
                                         [this, place] { mCommands->pasteAt(place); });
  paste->setEnabled(mCommands->paste()->isEnabled());
  QAction* const fit = menu->addAction(tr("Ganze Seite zeigen"), this, &FB_Page::zoomToFit);
  fit->setEnabled(mBlocks.count() > 0);
  menu->addSeparator();
  menu->addAction(Theme::icon(QStringLiteral("gear_white")), tr("Eigenschaften"), this,
                  [this] { emit propertiesRequested(mGuid); });
  menu->popup(screen);
}

void FB_Page::openBlockMenu(FB_Base& block, const FB_Pin_Ref* pin, const QPoint& screen) {
  QMenu* const menu = makeMenu(this);
  menu->addActions({mCommands->cut(), mCommands->copy(), mCommands->duplicate(), mCommands->remove()});
  QAction* const grid = menu->addAction(Theme::icon(QStringLiteral("grid_white-fit")), tr("Am Raster ausrichten"), this,
                                        &FB_Page::alignToGrid);
  grid->setEnabled(mayEdit() && mSettings.isOn(Setting::ShowGrid));
  menu->addSeparator();
  if (selectedBlocks().size() > 1) {
    addAlignment(*menu);
  }
  block.fillContextMenu(*menu);
  QAction* const generate = menu->addAction(Theme::icon(QStringLiteral("main_group")), tr("Variablen erzeugen\tStrg+G"),
                                            this, [this] { generateVariables(selectedBlocks()); });
  generate->setEnabled(mayEdit() && block.offersVariables());
  addUses(*menu, block, pin);
  menu->popup(screen);
}

void FB_Page::addAlignment(QMenu& menu) {
  QMenu* const edges = menu.addMenu(tr("&Ausrichten"));
  edges->setEnabled(mayEdit());
  for (const Edge_Row& row : cEdges) {
    edges->addAction(Theme::icon(QString::fromLatin1(row.mIcon)), tr(row.mText), this,
                     [this, edge = row.mEdge] { align(edge); });
  }
  edges->addSeparator();
  const bool isEnough = selectedBlocks().size() > 2;
  edges->addAction(tr("Aufteilen &Horizontal"), this, [this] { distribute(Qt::Horizontal); })->setEnabled(isEnough);
  edges->addAction(tr("Aufteilen &Vertikal"), this, [this] { distribute(Qt::Vertical); })->setEnabled(isEnough);
  menu.addSeparator();
}

/// Where else the binding of the pin, or of the block's pins, is used; of many pins in a menu below, each page once.
void FB_Page::addUses(QMenu& menu, const FB_Base& block, const FB_Pin_Ref* pin) {
  QSet<QUuid> known;
  std::vector<const DB_Address_Binding*> bindings;
  QSet<QUuid> pages;
  for (const FB_Side side : {FB_Side::Input, FB_Side::Output}) {
    const std::vector<DB_FB_Pin>& pins = FB_Pins::pins(block.record(), side);
    for (int i = 0; i < static_cast<int>(pins.size()); ++i) {
      const FB_Pin_Ref ref{block.guid(), side, i};
      const DB_Address_Binding& binding = pins[static_cast<size_t>(i)].mBinding;
      const bool isMeant = !pin || *pin == ref;
      if (isMeant && binding.mKind != DB_Address_Binding::Kind::None && !known.contains(binding.mKey)) {
        known.insert(binding.mKey);
        bindings.push_back(&binding);
        addLinks(menu, ref, pages);
      }
    }
  }
  QMenu& uses = bindings.size() > cFewBindings ? *menu.addMenu(tr("&Verknüpfungen")) : menu;
  for (const DB_Address_Binding* const binding : bindings) {
    uses.addAction(tr("Verwendungen von %1").arg(nameOf(*binding)), this,
                   [this, key = binding->mKey] { emit usagesRequested(key); });
    if (binding->mKind == DB_Address_Binding::Kind::Internal) {
      addVariable(uses, *binding);
    }
  }
  if (pin && !known.isEmpty()) {
    QAction* const unbind = menu.addAction(tr("Verknüpfung &entfernen"), this,
                                           [this, ref = *pin] { finish(FB_Page_Edits::unbind(mSession, ref)); });
    unbind->setEnabled(mayEdit());
  }
  if (!pin) {
    menu.addAction(tr("Alle Bausteine \"%1\"").arg(plain(FB_Types::name(block.type()).simplified())), this,
                   [this, type = block.type()] { emit typeUsagesRequested(type); });
  }
}

void FB_Page::addVariable(QMenu& menu, const DB_Address_Binding& binding) {
  QAction* const rename =
      menu.addAction(tr("%1 umbenennen…").arg(nameOf(binding)), this,
                     [this, key = binding.mKey, name = binding.mName] { renameVariable(key, name); });
  rename->setEnabled(mayEdit());
}

void FB_Page::renameVariable(const QUuid& key, const QString& name) {
  const QPointer<FB_Page> self = this;
  FB_Variable_Name_Dialog dialog(name, window());
  if (dialog.exec() == QDialog::Accepted && self) {
    finish(Variable_Edits::rename(mSession, key, dialog.name()));
  }
}
