#include "ui/Dev_Statistic_Dlg_Delegate.h"

#include "fb/model/FB_Binding_Search.h"
#include "ui/Dev_Statistic_Dlg_Model.h"

#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QSpinBox>
#include <QStringListModel>

namespace {

using Model = Dev_Statistic_Dlg_Model;

constexpr size_t cMostMatches = 20;

const Model& modelOf(const QModelIndex& index) {
  return *qobject_cast<const Model*>(index.model());
}

/// Proposals for number and name while it is typed.
QLineEdit* makeAddressEdit(const ProjectDatabase& database, QWidget* parent) {
  auto* const edit = new QLineEdit(parent);
  edit->setFrame(false);
  auto* const proposals = new QStringListModel(edit);
  auto* const completer = new QCompleter(proposals, edit);
  completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  edit->setCompleter(completer);
  QObject::connect(edit, &QLineEdit::textEdited, proposals, [proposals, &database](const QString& text) {
    QStringList matches;
    if (!text.trimmed().isEmpty()) {
      const Address_Usage noVariables;
      for (const FB_Binding_Search::Hit& hit : FB_Binding_Search(database, noVariables).find(text, cMostMatches)) {
        matches.append(hit.mText);
      }
    }
    proposals->setStringList(matches);
  });
  return edit;
}

QComboBox* makeList(const QList<Model::Choice>& choices, QWidget* parent) {
  auto* const list = new QComboBox(parent);
  list->setFrame(false);
  for (const Model::Choice& choice : choices) {
    list->addItem(choice.second, choice.first);
  }
  return list;
}

} // namespace

void Dev_Statistic_Dlg_Delegate::finish(QWidget* editor) {
  emit commitData(editor);
  emit closeEditor(editor);
}

QWidget* Dev_Statistic_Dlg_Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                                  const QModelIndex& index) const {
  const Model& model = modelOf(index);
  if (index.column() == Model::cAddress) {
    return makeAddressEdit(model.database(), parent);
  }
  if (index.column() == Model::cTab) {
    auto* const box = new QSpinBox(parent);
    box->setFrame(false);
    box->setRange(0, Statistic_Edits::cMostTab);
    return box;
  }
  if (const QList<Model::Choice> choices = model.choices(index.column()); !choices.isEmpty()) {
    QComboBox* const list = makeList(choices, parent);
    auto* const self = const_cast<Dev_Statistic_Dlg_Delegate*>(this); // the toolkit asks a constant delegate
    connect(list, &QComboBox::activated, self, [self, list] { self->finish(list); });
    return list;
  }
  QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
  if (auto* const edit = qobject_cast<QLineEdit*>(editor); edit && index.column() == Model::cName) {
    edit->setMaxLength(Statistic_Edits::cNameLimit);
  }
  return editor;
}

void Dev_Statistic_Dlg_Delegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (auto* const list = qobject_cast<QComboBox*>(editor)) {
    list->setCurrentIndex(list->findData(index.data(Qt::EditRole)));
  } else {
    QStyledItemDelegate::setEditorData(editor, index);
  }
}

void Dev_Statistic_Dlg_Delegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                              const QModelIndex& index) const {
  const auto* const list = qobject_cast<QComboBox*>(editor);
  if (!list) {
    QStyledItemDelegate::setModelData(editor, model, index);
  } else if (list->currentIndex() >= 0) {
    model->setData(index, list->currentData());
  }
}
