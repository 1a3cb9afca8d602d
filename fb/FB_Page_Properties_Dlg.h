#pragma once

#include "fb/model/FB_Page_List_Edits.h"

#include <QDialog>

class Checked_Line_Edit;
class Project_Session;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

/// Asks for the properties of a logic page. A name that may not be is marked and cannot be taken over.
class FB_Page_Properties_Dlg : public QDialog {
  Q_OBJECT

public:
  /// Shows what the page has now.
  FB_Page_Properties_Dlg(const Project_Session& session, const QUuid& page, QWidget* parent);

  [[nodiscard]] FB_Page_List_Edits::Properties properties() const;

private:
  void addController(const Project_Session& session, int present);
  [[nodiscard]] QSpinBox* makeSize(int value, const QString& name, const QString& toolTip);
  void addRow(QFormLayout& form, const QString& label, QWidget* field);

  Checked_Line_Edit* mName;
  QPlainTextEdit* mComment;
  QCheckBox* mIsActive;
  QComboBox* mController;
  QSpinBox* mWidth;
  QSpinBox* mHeight;
  QPushButton* mAccept = nullptr;
};
