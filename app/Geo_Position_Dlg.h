#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks where the building stands: latitude -90..90 and longitude -180..180 in degrees, north and east positive.
/// Decimal comma and point are taken; what is no number or out of range is told below its field and cannot be taken
/// over.
class Geo_Position_Dlg : public QDialog {
  Q_OBJECT

public:
  Geo_Position_Dlg(double latitude, double longitude, QWidget* parent);

  [[nodiscard]] double latitude() const;
  [[nodiscard]] double longitude() const;

private:
  struct Field {
    double mMaximum;
    QLineEdit* mEdit;
    QLabel* mReason;
  };
  [[nodiscard]] Field makeField(double value, double maximum, const QString& toolTip);
  [[nodiscard]] static bool check(const Field& field);
  void checkAll();

  Field mLatitude;
  Field mLongitude;
  QPushButton* mAccept = nullptr;
};
