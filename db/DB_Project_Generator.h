#pragma once

#include "db/DB_Data_Base.h"

#include <QString>
#include <QUuid>

#include <vector>

/// The settings of the project generator: the rules that tell a group address's place and purpose from its name, and
/// the structure of the building derived with them (floor, room, element, address).
class DB_Project_Generator : public DB_Record<DB_Project_Generator> {
public:
  struct Rule {
    QString mPattern; ///< regular expression over the name
    int mKind = 0;    ///< what a match tells: 0 floor, 1 room, 2 trade, 3 role of the address
    QString mResult;
    bool mActive = true;

    void fields(DB_Fields& fields);
  };

  struct Address {
    QUuid mAddressKey;
    QString mRole;

    void fields(DB_Fields& fields);
  };

  struct Element {
    QString mCaption;
    QString mTrade;
    int mBlockType = 0;
    int mWidgetType = 0;
    std::vector<Address> mAddresses;

    void fields(DB_Fields& fields);
  };

  struct Room {
    QString mCaption;
    std::vector<Element> mElements;

    void fields(DB_Fields& fields);
  };

  struct Floor {
    QString mCaption;
    std::vector<Room> mRooms;

    void fields(DB_Fields& fields);
  };

  void fields(DB_Fields& fields) override;

  int mOrientation = 0; ///< of the made pages: 0 landscape, 1 portrait scrolling, 2 portrait
  std::vector<Rule> mRules;
  std::vector<Floor> mFloors;
};
