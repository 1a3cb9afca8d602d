#pragma once

#include "db/ProjectDatabase.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRandomGenerator>

/// Makes up editing calls of an assistant that fit the project as it is. Few of them are refused all the same, such as
/// an address that is there already.
class Random_Calls {
public:
  struct Call {
    const char* mTool;
    QJsonObject mArguments;
  };

  /// The project outlives it.
  Random_Calls(const ProjectDatabase& database, quint32 seed) : mDatabase(database), mRandom(seed) {}

  Call next();

private:
  using Choice = Call (Random_Calls::*)();

  int bounded(int end) { return int(mRandom.bounded(end)); }
  template <class List>
  const auto& any(const List& list) {
    return *std::next(std::begin(list), bounded(int(std::size(list))));
  }

  static QString text(const QUuid& guid) { return guid.toString(QUuid::WithoutBraces); }
  QString word() { return QStringLiteral("Wort %1").arg(bounded(1000)); }
  const DB_FB_Page& page() { return *any(mDatabase.mFbPages.pages()); }
  /// Null when there is none of that type; 0 is any.
  const DB_FB_Control* block(int type = 0);
  QJsonObject known();
  QJsonObject fresh() {
    return {{QStringLiteral("main"), bounded(4)},
            {QStringLiteral("middle"), bounded(8)},
            {QStringLiteral("sub"), 1 + bounded(200)}};
  }
  static QJsonObject with(QJsonObject object, const QJsonObject& more) {
    for (auto member = more.begin(); member != more.end(); ++member) {
      object.insert(member.key(), member.value());
    }
    return object;
  }
  QJsonObject pin(const DB_FB_Control& block);
  QJsonObject modbusRegister();

  Call addPage() { return {"add_fb_page", {{QStringLiteral("caption"), word()}}}; }
  Call addBlock();
  Call deleteBlock();
  Call updateBlock();
  Call connectPins();
  Call disconnectPin();
  Call setScript();
  Call setPageController();
  Call createAddress() { return {"create_address", with(fresh(), {{QStringLiteral("comment"), word()}})}; }
  Call updateAddress() { return {"update_address", with(known(), {{QStringLiteral("comment"), word()}})}; }
  Call deleteAddress() { return {"delete_address", known()}; }
  Call assignAddress();
  Call assignAddresses();
  Call generateAddresses();
  Call importAddresses();
  Call setModbus();
  Call setRegisters();
  Call addRegister();
  Call updateRegister();
  Call deleteRegister();
  Call addConnection();
  Call updateConnection();
  Call deleteConnection();
  Call selectConnection();
  Call setControllers();
  Call addRecording();
  Call updateRecording();
  Call deleteRecording();

  const ProjectDatabase& mDatabase;
  QRandomGenerator mRandom;
};

inline const DB_FB_Control* Random_Calls::block(int type) {
  std::vector<const DB_FB_Control*> blocks;
  for (const auto& page : mDatabase.mFbPages.pages()) {
    for (const auto& block : page->mChildren) {
      if (type == 0 || block->mType == type) {
        blocks.push_back(block.get());
      }
    }
  }
  return blocks.empty() ? nullptr : any(blocks);
}

inline QJsonObject Random_Calls::known() {
  const Address_Tree& tree = mDatabase.mAddresses;
  std::vector<Group_Address> addresses;
  for (const auto& main : tree.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        addresses.emplace_back(main->mNumber, middle->mNumber, sub->mNumber);
      }
    }
  }
  if (addresses.empty()) {
    return fresh();
  }
  const Group_Address address = any(addresses);
  return {{QStringLiteral("main"), address.main()},
          {QStringLiteral("middle"), address.middle()},
          {QStringLiteral("sub"), address.sub()}};
}

inline QJsonObject Random_Calls::pin(const DB_FB_Control& block) {
  const bool isInput = block.mOutputs.empty() || (!block.mInputs.empty() && bounded(2) == 0);
  const size_t count = isInput ? block.mInputs.size() : block.mOutputs.size();
  return {{QStringLiteral("io_type"), isInput ? 0 : 1}, {QStringLiteral("io_index"), bounded(std::max(1, int(count)))}};
}

inline Random_Calls::Call Random_Calls::addBlock() {
  static constexpr int cTypes[] = {50, 51, 110, 900, 1917};
  return {"add_function_block",
          {{QStringLiteral("page_guid"), text(page().mGuid)},
           {QStringLiteral("type"), cTypes[bounded(std::size(cTypes))]},
           {QStringLiteral("x"), 16 * bounded(100)},
           {QStringLiteral("y"), 16 * bounded(100)},
           {QStringLiteral("auto_generate_addresses"), bounded(10) == 0}}};
}

inline Random_Calls::Call Random_Calls::deleteBlock() {
  const DB_FB_Control* const found = block();
  return found ? Call{"delete_function_block", {{QStringLiteral("guid"), text(found->mGuid)}}} : addBlock();
}

inline Random_Calls::Call Random_Calls::updateBlock() {
  const DB_FB_Control* const found = block();
  if (!found) {
    return addBlock();
  }
  QJsonObject arguments{{QStringLiteral("guid"), text(found->mGuid)}, {QStringLiteral("x"), 16 * bounded(100)}};
  if (bounded(2) == 0) {
    arguments.insert(QStringLiteral("comment"), word());
  }
  if (found->mType == 50) { // may take pins away, and their bindings
    arguments.insert(QStringLiteral("params"),
                     QJsonArray{QJsonObject{{QStringLiteral("index"), 0}, {QStringLiteral("value"), 2 + bounded(6)}}});
  }
  return {"update_fb", arguments};
}

inline Random_Calls::Call Random_Calls::connectPins() {
  const DB_FB_Page& where = page();
  if (where.mChildren.size() < 2) {
    return addBlock();
  }
  const DB_FB_Control& source = *any(where.mChildren);
  const DB_FB_Control& target = *any(where.mChildren);
  if (&source == &target || source.mOutputs.empty() || target.mInputs.empty()) {
    return addBlock();
  }
  return {"connect_fb_io",
          {{QStringLiteral("source_fb_guid"), text(source.mGuid)},
           {QStringLiteral("source_output_index"), bounded(int(source.mOutputs.size()))},
           {QStringLiteral("target_fb_guid"), text(target.mGuid)},
           {QStringLiteral("target_input_index"), bounded(int(target.mInputs.size()))}}};
}

inline Random_Calls::Call Random_Calls::disconnectPin() {
  const DB_FB_Control* const found = block();
  return found ? Call{"disconnect_fb_io", with(pin(*found), {{QStringLiteral("fb_guid"), text(found->mGuid)}})}
               : addBlock();
}

inline Random_Calls::Call Random_Calls::setScript() {
  const DB_FB_Control* const found = block(900);
  return found ? Call{"set_lua_script",
                      {{QStringLiteral("fb_guid"), text(found->mGuid)},
                       {QStringLiteral("code"), QStringLiteral("-- ") + word()},
                       {QStringLiteral("inputs"), 1 + bounded(6)},
                       {QStringLiteral("outputs"), 1 + bounded(6)}}}
               : addBlock();
}

inline Random_Calls::Call Random_Calls::setPageController() {
  const auto& controllers = mDatabase.mProject.mControllers;
  const int number = controllers.empty() || bounded(3) == 0 ? 0 : any(controllers).mNumber;
  return {"set_fb_page_controller",
          {{QStringLiteral("page_guid"), text(page().mGuid)}, {QStringLiteral("controller_index"), number}}};
}

inline Random_Calls::Call Random_Calls::assignAddress() {
  const DB_FB_Control* const found = block();
  return found ? Call{"assign_fb_io_address",
                      with(with(pin(*found), known()), {{QStringLiteral("fb_guid"), text(found->mGuid)}})}
               : addBlock();
}

inline Random_Calls::Call Random_Calls::assignAddresses() {
  const DB_FB_Control* const found = block();
  if (!found) {
    return addBlock();
  }
  QJsonArray assignments;
  for (int i = 0; i <= bounded(4); ++i) {
    assignments.append(with(pin(*found), known()));
  }
  return {"assign_fb_io_addresses_batch",
          {{QStringLiteral("fb_guid"), text(found->mGuid)}, {QStringLiteral("assignments"), assignments}}};
}

inline Random_Calls::Call Random_Calls::generateAddresses() {
  const DB_FB_Control* const found = block(50);
  return found ? Call{"generate_fb_addresses", {{QStringLiteral("fb_guid"), text(found->mGuid)}}} : addBlock();
}

inline Random_Calls::Call Random_Calls::importAddresses() {
  QString content;
  for (int i = 0; i <= bounded(5); ++i) {
    content += QStringLiteral("Import.Gruppe %1.%1/%2/%3\t%4\tEIS 1 'Switching' (1 Bit)\tLow\t\n")
                   .arg(bounded(4))
                   .arg(bounded(8))
                   .arg(1 + bounded(200))
                   .arg(word());
  }
  return {"import_knx_addresses",
          {{QStringLiteral("file_content"), content}, {QStringLiteral("format"), QStringLiteral("esf")}}};
}

inline QJsonObject Random_Calls::modbusRegister() {
  return {{QStringLiteral("address"), bounded(1000)},
          {QStringLiteral("function_code"), 3 + bounded(2)},
          {QStringLiteral("name"), word()}};
}

inline Random_Calls::Call Random_Calls::setModbus() {
  const DB_FB_Control* const found = block(1917);
  return found ? Call{"set_modbus_master_config",
                      {{QStringLiteral("fb_guid"), text(found->mGuid)},
                       {QStringLiteral("slave_id"), 1 + bounded(247)},
                       {QStringLiteral("timeout"), 500 + bounded(1000)}}}
               : addBlock();
}

inline Random_Calls::Call Random_Calls::setRegisters() {
  const DB_FB_Control* const found = block(1917);
  return found ? Call{"set_modbus_master_registers",
                      {{QStringLiteral("fb_guid"), text(found->mGuid)},
                       {QStringLiteral("registers"), QJsonArray{modbusRegister(), modbusRegister()}}}}
               : addBlock();
}

inline Random_Calls::Call Random_Calls::addRegister() {
  const DB_FB_Control* const found = block(1917);
  return found ? Call{"add_modbus_master_register",
                      with(modbusRegister(), {{QStringLiteral("fb_guid"), text(found->mGuid)}})}
               : addBlock();
}

inline Random_Calls::Call Random_Calls::updateRegister() {
  const DB_FB_Control* const found = block(1917);
  if (!found || found->mModbusRegisters.empty()) {
    return addRegister();
  }
  return {"update_modbus_master_register",
          with(modbusRegister(), {{QStringLiteral("fb_guid"), text(found->mGuid)},
                                  {QStringLiteral("index"), bounded(int(found->mModbusRegisters.size()))}})};
}

inline Random_Calls::Call Random_Calls::deleteRegister() {
  const DB_FB_Control* const found = block(1917);
  if (!found || found->mModbusRegisters.empty()) {
    return addRegister();
  }
  return {"delete_modbus_master_register",
          {{QStringLiteral("fb_guid"), text(found->mGuid)},
           {QStringLiteral("index"), bounded(int(found->mModbusRegisters.size()))}}};
}

inline Random_Calls::Call Random_Calls::addConnection() {
  return {"add_connection",
          {{QStringLiteral("ip"), QStringLiteral("127.0.0.%1").arg(1 + bounded(200))},
           {QStringLiteral("name"), word() + u' ' + QString::number(mRandom.generate())},
           {QStringLiteral("set_default"), bounded(2) == 0}}};
}

inline Random_Calls::Call Random_Calls::updateConnection() {
  const int count = int(mDatabase.mConnections.mItems.size());
  return count == 0 ? addConnection()
                    : Call{"update_connection",
                           {{QStringLiteral("index"), bounded(count)},
                            {QStringLiteral("ip"), QStringLiteral("127.0.0.%1").arg(1 + bounded(200))}}};
}

inline Random_Calls::Call Random_Calls::deleteConnection() {
  const int count = int(mDatabase.mConnections.mItems.size());
  return count == 0 ? addConnection() : Call{"delete_connection", {{QStringLiteral("index"), bounded(count)}}};
}

inline Random_Calls::Call Random_Calls::selectConnection() {
  const int count = int(mDatabase.mConnections.mItems.size());
  return count == 0 ? addConnection() : Call{"select_connection", {{QStringLiteral("index"), bounded(count)}}};
}

inline Random_Calls::Call Random_Calls::setControllers() {
  QJsonArray controllers;
  for (int i = 1; i <= bounded(4); ++i) {
    controllers.append(QJsonObject{{QStringLiteral("index"), i},
                                   {QStringLiteral("name"), QStringLiteral("Steuerung %1").arg(i)},
                                   {QStringLiteral("address"), QStringLiteral("127.0.1.%1").arg(i)},
                                   {QStringLiteral("is_main"), i == 1}});
  }
  return {"set_controller_list", {{QStringLiteral("controllers"), controllers}}};
}

inline Random_Calls::Call Random_Calls::addRecording() {
  const QJsonObject address = known();
  return {"add_statistic_recording",
          {{QStringLiteral("address"), QStringLiteral("%1/%2/%3")
                                           .arg(address["main"].toInt())
                                           .arg(address["middle"].toInt())
                                           .arg(address["sub"].toInt())},
           {QStringLiteral("name"), word()}}};
}

inline Random_Calls::Call Random_Calls::updateRecording() {
  const int count = int(mDatabase.mStatistic.mRecordings.size());
  return count == 0 ? addRecording()
                    : Call{"update_statistic_recording",
                           {{QStringLiteral("index"), bounded(count)},
                            {QStringLiteral("name"), word()},
                            {QStringLiteral("active"), bounded(2) == 0}}};
}

inline Random_Calls::Call Random_Calls::deleteRecording() {
  const int count = int(mDatabase.mStatistic.mRecordings.size());
  return count == 0 ? addRecording() : Call{"delete_statistic_recording", {{QStringLiteral("index"), bounded(count)}}};
}

inline Random_Calls::Call Random_Calls::next() {
  static constexpr Choice cChoices[] = {
      &Random_Calls::addPage,           &Random_Calls::addBlock,         &Random_Calls::addBlock,
      &Random_Calls::addBlock,          &Random_Calls::deleteBlock,      &Random_Calls::updateBlock,
      &Random_Calls::updateBlock,       &Random_Calls::connectPins,      &Random_Calls::connectPins,
      &Random_Calls::connectPins,       &Random_Calls::disconnectPin,    &Random_Calls::setScript,
      &Random_Calls::setPageController, &Random_Calls::createAddress,    &Random_Calls::createAddress,
      &Random_Calls::updateAddress,     &Random_Calls::deleteAddress,    &Random_Calls::assignAddress,
      &Random_Calls::assignAddress,     &Random_Calls::assignAddresses,  &Random_Calls::generateAddresses,
      &Random_Calls::importAddresses,   &Random_Calls::setModbus,        &Random_Calls::setRegisters,
      &Random_Calls::addRegister,       &Random_Calls::updateRegister,   &Random_Calls::deleteRegister,
      &Random_Calls::addConnection,     &Random_Calls::updateConnection, &Random_Calls::deleteConnection,
      &Random_Calls::selectConnection,  &Random_Calls::setControllers,   &Random_Calls::addRecording,
      &Random_Calls::updateRecording,   &Random_Calls::deleteRecording,
  };
  return (this->*any(cChoices))();
}
