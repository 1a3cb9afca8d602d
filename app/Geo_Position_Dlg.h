#pragma once

#include <QDialog>

class QDoubleSpinBox;

/// Asks where the building stands: latitude -90..90 and longitude -180..180 in degrees, north and east positive.
class Geo_Position_Dlg : public QDialog {
  Q_OBJECT

public:
  Geo_Position_Dlg(double latitude, double longitude, QWidget* parent);

  [[nodiscard]] double latitude() const;
  [[nodiscard]] double longitude() const;

private:
  QDoubleSpinBox* mLatitude;
  QDoubleSpinBox* mLongitude;
};
