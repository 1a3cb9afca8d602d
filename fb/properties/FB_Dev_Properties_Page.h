#pragma once

#include "db/Edit_Result.h"
#include "fb/FB_Property_Editors.h"
#include "fb/model/FB_Shared_Value.h"
#include "fb/properties/FB_Dev_Properties_Editor.h"

#include <QList>
#include <QPointer>
#include <QUuid>
#include <QWidget>

#include <functional>
#include <map>

class Elided_Label;
class FB_Address_Edit;
class FB_Page;
class FB_Page_Follower;
class FB_Property_Row;
class Project_Session;
class QLabel;
class QPushButton;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

/// The upper part of the property panel: general fields and parameters of the selected blocks, what they share and
/// where they differ. Parameters are shown when all blocks have one type. It follows the records without disturbing
/// what is being typed, and every edit is one step for all blocks. The session outlives it.
class FB_Dev_Properties_Page : public QWidget, public FB_Property_Editors {
  Q_OBJECT

public:
  explicit FB_Dev_Properties_Page(Project_Session& session, QWidget* parent = nullptr);
  ~FB_Dev_Properties_Page() override;

  void showBlocks(FB_Page& page);
  void clear();
  [[nodiscard]] bool isEmpty() const { return mBlocks.isEmpty(); }

  /// Of the parameters, in their order.
  [[nodiscard]] QList<FB_Dev_Properties_Editor*> editors() const;
  /// Null when there is none of that index.
  [[nodiscard]] FB_Dev_Properties_Editor* editor(int index) const;

  // FB_Property_Editors
  FB_Dev_Properties_SpinBox* addNumber(int index, const FB_Parameter& parameter, const QString& value) override;
  FB_Dev_Properties_Checkbox* addCheck(int index, const FB_Parameter& parameter, const QString& value) override;
  FB_Dev_Properties_ComboBox* addChoice(int index, const FB_Parameter& parameter, const QString& value) override;
  FB_Dev_Properties_LineEdit* addText(int index, const FB_Parameter& parameter, const QString& value) override;
  void setEnabled(int index, bool isEnabled) override;

signals:
  void pagePropertiesRequested(const QUuid& page);
  void editorRequested(const QUuid& block);
  /// Nothing is selected any more, or something is.
  void emptyChanged();
  void statusText(const QString& text);

protected:
  void resizeEvent(QResizeEvent* event) override;

private slots:
  void onFB_Edit_name_editingFinished();
  void onFB_StandardParamFB_NameTakeClicked();
  void onFB_StandardParamFB_CommentAsCaptionClicked(bool isCaption);
  void onParam_SpinBox_valueChanged(FB_Dev_Properties_SpinBox* editor);
  void onParam_Checkbox_valueChanged(FB_Dev_Properties_Checkbox* editor);
  void onParam_Combobox_valueChanged(FB_Dev_Properties_ComboBox* editor);
  void onParam_Edit_valueChanged(FB_Dev_Properties_LineEdit* editor);
  void onGenerateVariable_clicked();
  void onPageProperties_clicked();

private:
  struct Field {
    QTreeWidgetItem* mItem = nullptr;
    FB_Property_Row* mRow = nullptr;
    FB_Dev_Properties_Editor* mEditor = nullptr;
    QString mToolTip;        ///< of the editor
    QString mDescription;    ///< of the name
    QString mDisabledReason; ///< empty while it can be used
  };
  struct Parameter_Field : Field {
    FB_Parameter mParameter;
    bool mIsAsked = false; ///< for by the block, in the present round
  };
  using Blocks = std::vector<const DB_FB_Control*>;

  void buildGeneral();
  void buildButtons(class QVBoxLayout& layout);
  Field addField(QTreeWidgetItem& section, int place, const QString& name, FB_Dev_Properties_Editor& editor);
  void describe(Field& field, const QString& description, const QString& toolTip);
  void connectGeneral();

  [[nodiscard]] Blocks records() const;
  /// Shows what the records say.
  void refresh();
  void showHeading(const Blocks& blocks);
  void showGeneral(const Blocks& blocks);
  void showController();
  void showParameters(const Blocks& blocks);
  void showParameter(Parameter_Field& field, int index, const Blocks& blocks);
  /// What is wrong with the value that is shown or typed, and which bindings it would take.
  void showRemark(Parameter_Field& field, int index, const Blocks& blocks);
  /// Of a row that belongs to a pin that none of the blocks has.
  [[nodiscard]] bool isBeyondCount(const Parameter_Field& field, int index, const Blocks& blocks) const;
  void showParameterHint(const Blocks& blocks);
  void updateEnabled(const Blocks& blocks);
  [[nodiscard]] QString whyUseless(const Parameter_Field& field, const Blocks& blocks) const;
  void setDisabledReason(Field& field, const QString& reason);
  void setNotice(const QString& text);
  void clearParameters();
  void updateColumns();
  void orderTabs();
  /// Scrolls to the row that the widget stands in.
  void reveal(const QWidget* widget);
  void finishTyping();

  /// One change of all blocks; further ones of the same field belong to it.
  bool edit(QWidget& field, const std::function<Edit_Result()>& change);
  void editParameter(FB_Dev_Properties_Editor& editor, const QString& value);
  void editController();
  void editDisableAddress();
  [[nodiscard]] bool countsPins(int index) const;

  template <class Editor, class Slot>
  Editor* editorFor(int index, const FB_Parameter& parameter, const QString& value, Slot slot);

  Project_Session& mSession;
  QPointer<FB_Page> mCanvas;
  QList<QUuid> mBlocks;
  FB_Page_Follower* mFollower;
  QLabel* mHeading;
  Elided_Label* mSubject;
  QWidget* mNotice;
  QLabel* mNoticeText;
  QTreeWidget* mTree;
  QTreeWidgetItem* mGeneral;
  QTreeWidgetItem* mParameters;
  QTreeWidgetItem* mHint;
  QPushButton* mGenerate = nullptr;
  QToolButton* mPageProperties = nullptr;
  QPushButton* mOpenEditor = nullptr;
  QToolButton* mTakeName = nullptr;

  FB_Dev_Properties_LineEdit* mName = nullptr;
  FB_Dev_Properties_LineEdit* mComment = nullptr;
  FB_Dev_Properties_Checkbox* mAsCaption = nullptr;
  FB_Dev_Properties_Checkbox* mDisabled = nullptr;
  FB_Dev_Properties_Checkbox* mUpdateAtStart = nullptr;
  FB_Dev_Properties_Checkbox* mUpdateCyclic = nullptr;
  FB_Dev_Properties_SpinBox* mStartDelay = nullptr;
  FB_Dev_Properties_ComboBox* mController = nullptr;
  FB_Address_Edit* mDisableAddress = nullptr;
  std::map<FB_Dev_Properties_Editor*, Field> mFields; ///< the general ones
  std::map<int, Parameter_Field> mRows;               ///< by the index of the parameter
  int mType = -1;                                     ///< of which the rows are
  bool mHasNewRows = true;

  QPointer<QWidget> mMergeField; ///< whose edits belong together
  quint64 mMerge = 0;
};
