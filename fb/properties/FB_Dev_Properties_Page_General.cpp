// The fields that blocks of every type have.
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Block_Editors.h"
#include "fb/FB_Page.h"
#include "fb/model/FB_Block_Edits.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "fb/model/FB_Parameter_Text.h"
#include "fb/properties/FB_Address_Edit.h"
#include "fb/properties/FB_Dev_Properties_Checkbox.h"
#include "fb/properties/FB_Dev_Properties_ComboBox.h"
#include "fb/properties/FB_Dev_Properties_LineEdit.h"
#include "fb/properties/FB_Dev_Properties_Page.h"
#include "fb/properties/FB_Dev_Properties_SpinBox.h"
#include "fb/properties/FB_Property_Row.h"

#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>

namespace {

constexpr int cNoParameter = -1;

QString flag(bool isOn) {
  return isOn ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace

void FB_Dev_Properties_Page::buildGeneral() {
  const auto add = [this](auto*& member, const QString& name, const QString& toolTip) {
    using Editor = std::remove_reference_t<decltype(*member)>;
    member = new Editor(cNoParameter);
    Field field = addField(*mGeneral, mGeneral->childCount(), name, *member);
    describe(field, toolTip, toolTip);
    return mFields.emplace(member, field).first->second.mRow;
  };
  FB_Property_Row* const name = add(mName, tr("Name"), tr("Name des Bausteins, höchstens 255 Zeichen"));
  mTakeName = &name->addButton(
      QStringLiteral("arrow_double_left_white"), tr("Name übernehmen"),
      tr("Name übernehmen: Name der Adresse am ersten verknüpften Ausgang, sonst am ersten verknüpften Eingang, sonst "
         "der Titel des Bausteins"));
  add(mComment, tr("Kommentar"), tr("Kommentar zum Baustein, höchstens 20 000 Zeichen"));
  add(mAsCaption, tr("Als Überschrift"), tr("Der Kommentar steht als Titel auf dem Baustein."));
  add(mDisabled, tr("Baustein deaktivieren"), tr("Der Baustein wird nicht ausgeführt."));
  add(mUpdateAtStart, tr("Beim Start aktualisieren"), tr("Die Ausgänge werden beim Start der Steuerung gesendet."));
  add(mUpdateCyclic, tr("Zyklisch aktualisieren"), tr("Die Ausgänge werden zyklisch gesendet."));
  add(mStartDelay, tr("Startverzögerung"),
      tr("Wichtig: Bei einem Wert > 0 werden die Ausgänge beim Start der Steuerung nicht mehr aktualisiert!"));
  mStartDelay->setLimits(0, FB_Block_Edits::cStartDelayMaximum, 0, tr("s"));
  Field& delay = mFields.at(mStartDelay);
  describe(delay, delay.mDescription,
           delay.mDescription + u'\n' + tr("Bereich: 0 bis %1 s").arg(FB_Block_Edits::cStartDelayMaximum));
  add(mController, tr("Ausführende Steuerung"),
      tr("Genau eine Steuerung führt die Bausteine dieser Seite aus - nie mehrere.") + u'\n' +
          tr("\"Hauptsteuerung\" ist die Steuerung, die unter \"Verteiltes Projekt\" als Hauptsteuerung angegeben "
             "ist."));
  mDisableAddress = new FB_Address_Edit(std::as_const(mSession).database());
  Field address = addField(*mGeneral, mGeneral->childCount(), tr("Deaktivieren Adresse"), *mDisableAddress);
  const QString tip = tr("Gruppenadresse, die den Baustein deaktiviert, solange ihr Wert Ein ist.\nNummer oder Namen "
                         "eingeben, oder eine Gruppenadresse aus \"Variablen\" hierher ziehen.");
  describe(address, tip, tip);
  QToolButton& remove =
      address.mRow->addButton(QStringLiteral("trash-white"), tr("Adresse entfernen"), tr("Adresse entfernen"));
  connect(&remove, &QToolButton::clicked, mDisableAddress, &FB_Address_Edit::takeOff);
  mFields.emplace(mDisableAddress, address);
}

void FB_Dev_Properties_Page::connectGeneral() {
  const auto onFlag = [this](FB_Dev_Properties_Checkbox* box, auto change) {
    connect(box, &FB_Dev_Properties_Checkbox::valueChanged, this,
            [this, box, change] { edit(*box, [&] { return change(mSession, mBlocks, box->isChecked()); }); });
  };
  connect(mName, &QLineEdit::editingFinished, this, &FB_Dev_Properties_Page::onFB_Edit_name_editingFinished);
  connect(mTakeName, &QToolButton::clicked, this, &FB_Dev_Properties_Page::onFB_StandardParamFB_NameTakeClicked);
  connect(mComment, &FB_Dev_Properties_LineEdit::valueChanged, this, [this] {
    edit(*mComment, [this] { return FB_Block_Edits::setComment(mSession, mBlocks, mComment->text()); });
  });
  connect(mAsCaption, &QAbstractButton::clicked, this,
          &FB_Dev_Properties_Page::onFB_StandardParamFB_CommentAsCaptionClicked);
  onFlag(mDisabled, &FB_Block_Edits::setDisabled);
  onFlag(mUpdateAtStart, &FB_Block_Edits::setUpdateAtStart);
  onFlag(mUpdateCyclic, &FB_Block_Edits::setUpdateCyclic);
  connect(mStartDelay, qOverload<FB_Dev_Properties_SpinBox*>(&FB_Dev_Properties_SpinBox::valueChanged), this, [this] {
    edit(*mStartDelay,
         [this] { return FB_Block_Edits::setStartDelay(mSession, mBlocks, static_cast<int>(mStartDelay->value())); });
  });
  connect(mController, &FB_Dev_Properties_ComboBox::valueChanged, this, &FB_Dev_Properties_Page::editController);
  connect(mDisableAddress, &FB_Address_Edit::addressChosen, this, [this](const QUuid& key) {
    edit(*mDisableAddress, [&] { return FB_Block_Edits::setDisableAddress(mSession, mBlocks, key); });
  });
  connect(mDisableAddress, &FB_Address_Edit::refused, this, [this](const QString& text) {
    setNotice(text);
    refresh();
  });
}

void FB_Dev_Properties_Page::showGeneral(const Blocks& blocks) {
  const auto show = [&](FB_Dev_Properties_Editor* editor, auto&& field) {
    editor->showValue(FB_Shared_Value::of(blocks, field));
  };
  show(mName, [](const DB_FB_Control& block) { return block.mName; });
  show(mComment, [](const DB_FB_Control& block) { return block.mComment; });
  show(mAsCaption, [](const DB_FB_Control& block) { return flag(block.mCommentAsCaption); });
  show(mDisabled, [](const DB_FB_Control& block) { return flag(block.mDisabled); });
  show(mUpdateAtStart, [](const DB_FB_Control& block) { return flag(block.mUpdateAtStart); });
  show(mUpdateCyclic, [](const DB_FB_Control& block) { return flag(block.mUpdateCyclic); });
  show(mStartDelay, [](const DB_FB_Control& block) { return QString::number(block.mStartDelay); });
  show(mDisableAddress, [](const DB_FB_Control& block) { return FB_Address_Edit::textOf(block.mDisableAddress); });
  const double delay = mStartDelay->value();
  const bool isOutside = delay < mStartDelay->lowest() || delay > mStartDelay->highest();
  mFields.at(mStartDelay)
      .mRow->setRemark(isOutside ? tr("erlaubt: 0 bis %1 s").arg(FB_Block_Edits::cStartDelayMaximum) : QString(), {});
  showController();
}

/// Of the page, not of the block. A number whose controller is gone is still shown.
void FB_Dev_Properties_Page::showController() {
  const ProjectDatabase& database = std::as_const(mSession).database();
  const DB_FB_Page* const page = mCanvas && !isEmpty() ? database.mFbPages.page(mCanvas->pageGuid()) : nullptr;
  if (!page) {
    return;
  }
  QList<FB_Dev_Properties_ComboBox::Entry> entries{{tr("Hauptsteuerung"), QStringLiteral("0")}};
  bool isThere = page->mControllerIndex == 0;
  for (const DB_Controller& controller : database.mProject.mControllers) {
    entries.append({tr("%1 (%2)").arg(controller.mNumber).arg(controller.mName), QString::number(controller.mNumber)});
    isThere = isThere || controller.mNumber == page->mControllerIndex;
  }
  mController->setEntries(entries);
  mController->showValue({QString::number(page->mControllerIndex), false});
  mFields.at(mController).mRow->setRemark(isThere ? QString() : tr("steht nicht mehr in der Liste"), {});
}

void FB_Dev_Properties_Page::updateEnabled(const Blocks& blocks) {
  const bool isOperating = mSession.state().operatingMode();
  const QString refusal = isOperating ? Session_State::operatingModeRefusal() : QString();
  const auto any = [this](auto&& ask) {
    return std::ranges::any_of(mBlocks, [&](const QUuid& guid) {
      const FB_Base* const block = mCanvas->blocks().find(guid);
      return block && ask(*block);
    });
  };
  const bool canRest = any([](const FB_Base& block) { return block.canBeDisabled(); });
  const QString noRest = canRest || isOperating ? refusal : tr("Der Baustein wird nie ausgeführt.");
  for (auto& [editor, field] : mFields) {
    const bool isOfRunning = editor == mDisabled || editor == mUpdateAtStart || editor == mUpdateCyclic ||
                             editor == mStartDelay || editor == mDisableAddress;
    setDisabledReason(field, isOfRunning ? noRest : refusal);
  }
  for (auto& [index, field] : mRows) {
    setDisabledReason(field, isOperating ? refusal : whyUseless(field, blocks));
  }
  const bool hasVariables = any([](const FB_Base& block) { return block.offersVariables(); });
  mGenerate->setEnabled(hasVariables && !isOperating);
  mGenerate->setToolTip(isOperating    ? refusal
                        : hasVariables ? tr("Macht Gruppenadressen für Ein- und Ausgänge und verknüpft sie")
                                       : tr("Der Baustein hat keine Ein- und Ausgänge."));
  mPageProperties->setEnabled(!isOperating);
  mPageProperties->setToolTip(isOperating ? refusal : tr("Eigenschaften der Seite"));
  const QString command = blocks.size() == 1 ? FB_Block_Editors::commandText(blocks.front()->mType) : QString();
  mOpenEditor->setText(command);
  mOpenEditor->setVisible(!command.isEmpty());
}

void FB_Dev_Properties_Page::onFB_Edit_name_editingFinished() {
  mName->finishTyping();
  const Blocks blocks = records();
  const auto isOther = [this](const DB_FB_Control* block) { return block->mName != mName->text(); };
  if (!mName->value().mIsMixed && std::ranges::any_of(blocks, isOther)) {
    edit(*mName, [this] { return FB_Block_Edits::setName(mSession, mBlocks, mName->text()); });
  }
}

void FB_Dev_Properties_Page::onFB_StandardParamFB_NameTakeClicked() {
  edit(*mTakeName, [this] { return FB_Block_Edits::takeNames(mSession, mBlocks); });
}

void FB_Dev_Properties_Page::onFB_StandardParamFB_CommentAsCaptionClicked(bool isCaption) {
  edit(*mAsCaption, [&] { return FB_Block_Edits::setCommentAsCaption(mSession, mBlocks, isCaption); });
}

void FB_Dev_Properties_Page::editController() {
  if (!mCanvas) {
    return;
  }
  FB_Page_List_Edits::Properties properties = FB_Page_List_Edits::properties(mSession, mCanvas->pageGuid());
  properties.mController = mController->storedText().toInt();
  edit(*mController, [&] { return FB_Page_List_Edits::setProperties(mSession, mCanvas->pageGuid(), properties); });
}
