#include "db/Ets_Reader.h"

#include "db/Ets_Collector.h"
#include "db/Ets_Xml_Reader.h"

#include <QIODevice>

bool Ets_Reader::read(QIODevice& device, const Options& options, Ets_Groups& groups, QString& error) {
  groups = {};
  Ets_Collector collector(options, groups);
  if (collector.checkSize(device.size()) && Ets_Xml_Reader::read(device, collector)) {
    return true;
  }
  error = collector.error();
  groups = {};
  return false;
}
