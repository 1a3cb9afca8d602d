#include "tests/db/Project_Dump.h"
#include "tests/mcp/Tool_Rig.h"

#include <QRandomGenerator>

using namespace Qt::StringLiterals;

/// Random editing calls of an assistant: each is at most one undo step, undoing all of them leads back to the project
/// as it was, redoing to what it became. `EDITS_SEED` repeats a run, `EDITS_COUNT` sets its length.
class Random_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void everythingComesBack();

private:
  struct Call {
    const char* mTool;
    QJsonObject mArguments;
  };
  using Choice = Call (Random_Tools_Test::*)();

  /// Fewer than the history keeps, so that all of them can be undone.
  static constexpr quint32 cRound = 500;
  static constexpr quint32 cDefaultCount = 2000;

  static quint32 number(const char* variable, quint32 otherwise) {
    bool isNumber = false;
    const quint32 value = qEnvironmentVariable(variable).toUInt(&isNumber);
    return isNumber ? value : otherwise;
  }
  int bounded(int end) { return int(mRandom.bounded(end)); }
  template <class List>
  const auto& any(const List& list) {
    return *std::next(std::begin(list), bounded(int(std::size(list))));
  }

  const ProjectDatabase& database() { return std::as_const(mRig.mSession).database(); }
  QByteArray state() { return Project_Dump::project(mRig.mSession.database()); }
  static QString text(const QUuid& guid) { return guid.toString(QUuid::WithoutBraces); }
  QString word() { return u"Wort %1"_s.arg(bounded(1000)); }
  const DB_FB_Page& page() { return *any(database().mFbPages.pages()); }
  /// Null when there is none of that type; 0 is any.
  const DB_FB_Control* block(int type = 0);
  QJsonObject known();
  QJsonObject fresh() { return {{u"main"_s, bounded(4)}, {u"middle"_s, bounded(8)}, {u"sub"_s, 1 + bounded(200)}}; }
  static QJsonObject with(QJsonObject object, const QJsonObject& more) {
    for (auto member = more.begin(); member != more.end(); ++member) {
      object.insert(member.key(), member.value());
    }
    return object;
  }
  QJsonObject pin(const DB_FB_Control& block);
  QJsonObject modbusRegister();

  Call addPage() { return {"add_fb_page", {{u"caption"_s, word()}}}; }
  Call addBlock();
  Call deleteBlock();
  Call updateBlock();
  Call connectPins();
  Call disconnectPin();
  Call setScript();
  Call setPageController();
  Call createAddress() { return {"create_address", with(fresh(), {{u"comment"_s, word()}})}; }
  Call updateAddress() { return {"update_address", with(known(), {{u"comment"_s, word()}})}; }
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
  Call edit();
  bool makeOne();

  Tool_Rig mRig;
  QRandomGenerator mRandom;
  QByteArray mState;
  QHash<QByteArray, int> mTaken;
  QHash<QByteArray, QString> mRefused;
};

const DB_FB_Control* Random_Tools_Test::block(int type) {
  std::vector<const DB_FB_Control*> blocks;
  for (const auto& page : database().mFbPages.pages()) {
    for (const auto& block : page->mChildren) {
      if (type == 0 || block->mType == type) {
        blocks.push_back(block.get());
      }
    }
  }
  return blocks.empty() ? nullptr : any(blocks);
}

QJsonObject Random_Tools_Test::known() {
  const Address_Tree& tree = database().mAddresses;
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
  return {{u"main"_s, address.main()}, {u"middle"_s, address.middle()}, {u"sub"_s, address.sub()}};
}

QJsonObject Random_Tools_Test::pin(const DB_FB_Control& block) {
  const bool isInput = block.mOutputs.empty() || (!block.mInputs.empty() && bounded(2) == 0);
  const size_t count = isInput ? block.mInputs.size() : block.mOutputs.size();
  return {{u"io_type"_s, isInput ? 0 : 1}, {u"io_index"_s, bounded(std::max(1, int(count)))}};
}

Random_Tools_Test::Call Random_Tools_Test::addBlock() {
  static constexpr int cTypes[] = {50, 51, 110, 900, 1917};
  return {"add_function_block",
          {{u"page_guid"_s, text(page().mGuid)},
           {u"type"_s, cTypes[bounded(std::size(cTypes))]},
           {u"x"_s, 16 * bounded(100)},
           {u"y"_s, 16 * bounded(100)},
           {u"auto_generate_addresses"_s, bounded(10) == 0}}};
}

Random_Tools_Test::Call Random_Tools_Test::deleteBlock() {
  const DB_FB_Control* const found = block();
  return found ? Call{"delete_function_block", {{u"guid"_s, text(found->mGuid)}}} : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::updateBlock() {
  const DB_FB_Control* const found = block();
  if (!found) {
    return addBlock();
  }
  QJsonObject arguments{{u"guid"_s, text(found->mGuid)}, {u"x"_s, 16 * bounded(100)}};
  if (bounded(2) == 0) {
    arguments.insert(u"comment"_s, word());
  }
  if (found->mType == 50) { // may take pins away, and their bindings
    arguments.insert(u"params"_s, QJsonArray{QJsonObject{{u"index"_s, 0}, {u"value"_s, 2 + bounded(6)}}});
  }
  return {"update_fb", arguments};
}

Random_Tools_Test::Call Random_Tools_Test::connectPins() {
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
          {{u"source_fb_guid"_s, text(source.mGuid)},
           {u"source_output_index"_s, bounded(int(source.mOutputs.size()))},
           {u"target_fb_guid"_s, text(target.mGuid)},
           {u"target_input_index"_s, bounded(int(target.mInputs.size()))}}};
}

Random_Tools_Test::Call Random_Tools_Test::disconnectPin() {
  const DB_FB_Control* const found = block();
  return found ? Call{"disconnect_fb_io", with(pin(*found), {{u"fb_guid"_s, text(found->mGuid)}})} : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::setScript() {
  const DB_FB_Control* const found = block(900);
  return found ? Call{"set_lua_script",
                      {{u"fb_guid"_s, text(found->mGuid)},
                       {u"code"_s, u"-- "_s + word()},
                       {u"inputs"_s, 1 + bounded(6)},
                       {u"outputs"_s, 1 + bounded(6)}}}
               : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::setPageController() {
  const auto& controllers = database().mProject.mControllers;
  const int number = controllers.empty() || bounded(3) == 0 ? 0 : any(controllers).mNumber;
  return {"set_fb_page_controller", {{u"page_guid"_s, text(page().mGuid)}, {u"controller_index"_s, number}}};
}

Random_Tools_Test::Call Random_Tools_Test::assignAddress() {
  const DB_FB_Control* const found = block();
  return found ? Call{"assign_fb_io_address", with(with(pin(*found), known()), {{u"fb_guid"_s, text(found->mGuid)}})}
               : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::assignAddresses() {
  const DB_FB_Control* const found = block();
  if (!found) {
    return addBlock();
  }
  QJsonArray assignments;
  for (int i = 0; i <= bounded(4); ++i) {
    assignments.append(with(pin(*found), known()));
  }
  return {"assign_fb_io_addresses_batch", {{u"fb_guid"_s, text(found->mGuid)}, {u"assignments"_s, assignments}}};
}

Random_Tools_Test::Call Random_Tools_Test::generateAddresses() {
  const DB_FB_Control* const found = block(50);
  return found ? Call{"generate_fb_addresses", {{u"fb_guid"_s, text(found->mGuid)}}} : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::importAddresses() {
  QString content;
  for (int i = 0; i <= bounded(5); ++i) {
    content += u"Import.Gruppe %1.%1/%2/%3\t%4\tEIS 1 'Switching' (1 Bit)\tLow\t\n"_s.arg(bounded(4))
                   .arg(bounded(8))
                   .arg(1 + bounded(200))
                   .arg(word());
  }
  return {"import_knx_addresses", {{u"file_content"_s, content}, {u"format"_s, u"esf"_s}}};
}

QJsonObject Random_Tools_Test::modbusRegister() {
  return {{u"address"_s, bounded(1000)}, {u"function_code"_s, 3 + bounded(2)}, {u"name"_s, word()}};
}

Random_Tools_Test::Call Random_Tools_Test::setModbus() {
  const DB_FB_Control* const found = block(1917);
  return found ? Call{"set_modbus_master_config",
                      {{u"fb_guid"_s, text(found->mGuid)},
                       {u"slave_id"_s, 1 + bounded(247)},
                       {u"timeout"_s, 500 + bounded(1000)}}}
               : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::setRegisters() {
  const DB_FB_Control* const found = block(1917);
  return found ? Call{"set_modbus_master_registers",
                      {{u"fb_guid"_s, text(found->mGuid)},
                       {u"registers"_s, QJsonArray{modbusRegister(), modbusRegister()}}}}
               : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::addRegister() {
  const DB_FB_Control* const found = block(1917);
  return found ? Call{"add_modbus_master_register", with(modbusRegister(), {{u"fb_guid"_s, text(found->mGuid)}})}
               : addBlock();
}

Random_Tools_Test::Call Random_Tools_Test::updateRegister() {
  const DB_FB_Control* const found = block(1917);
  if (!found || found->mModbusRegisters.empty()) {
    return addRegister();
  }
  return {"update_modbus_master_register",
          with(modbusRegister(),
               {{u"fb_guid"_s, text(found->mGuid)}, {u"index"_s, bounded(int(found->mModbusRegisters.size()))}})};
}

Random_Tools_Test::Call Random_Tools_Test::deleteRegister() {
  const DB_FB_Control* const found = block(1917);
  if (!found || found->mModbusRegisters.empty()) {
    return addRegister();
  }
  return {"delete_modbus_master_register",
          {{u"fb_guid"_s, text(found->mGuid)}, {u"index"_s, bounded(int(found->mModbusRegisters.size()))}}};
}

Random_Tools_Test::Call Random_Tools_Test::addConnection() {
  return {"add_connection",
          {{u"ip"_s, u"127.0.0.%1"_s.arg(1 + bounded(200))},
           {u"name"_s, word() + u' ' + QString::number(mRandom.generate())},
           {u"set_default"_s, bounded(2) == 0}}};
}

Random_Tools_Test::Call Random_Tools_Test::updateConnection() {
  const int count = int(database().mConnections.mItems.size());
  return count == 0 ? addConnection()
                    : Call{"update_connection",
                           {{u"index"_s, bounded(count)}, {u"ip"_s, u"127.0.0.%1"_s.arg(1 + bounded(200))}}};
}

Random_Tools_Test::Call Random_Tools_Test::deleteConnection() {
  const int count = int(database().mConnections.mItems.size());
  return count == 0 ? addConnection() : Call{"delete_connection", {{u"index"_s, bounded(count)}}};
}

Random_Tools_Test::Call Random_Tools_Test::selectConnection() {
  const int count = int(database().mConnections.mItems.size());
  return count == 0 ? addConnection() : Call{"select_connection", {{u"index"_s, bounded(count)}}};
}

Random_Tools_Test::Call Random_Tools_Test::setControllers() {
  QJsonArray controllers;
  for (int i = 1; i <= bounded(4); ++i) {
    controllers.append(QJsonObject{{u"index"_s, i},
                                   {u"name"_s, u"Steuerung %1"_s.arg(i)},
                                   {u"ip"_s, u"127.0.1.%1"_s.arg(i)},
                                   {u"is_main"_s, i == 1}});
  }
  return {"set_controller_list", {{u"controllers"_s, controllers}}};
}

Random_Tools_Test::Call Random_Tools_Test::addRecording() {
  const QJsonObject address = known();
  return {"add_statistic_recording",
          {{u"address"_s,
            u"%1/%2/%3"_s.arg(address["main"].toInt()).arg(address["middle"].toInt()).arg(address["sub"].toInt())},
           {u"name"_s, word()}}};
}

Random_Tools_Test::Call Random_Tools_Test::updateRecording() {
  const int count = int(database().mStatistic.mRecordings.size());
  return count == 0 ? addRecording()
                    : Call{"update_statistic_recording",
                           {{u"index"_s, bounded(count)}, {u"name"_s, word()}, {u"active"_s, bounded(2) == 0}}};
}

Random_Tools_Test::Call Random_Tools_Test::deleteRecording() {
  const int count = int(database().mStatistic.mRecordings.size());
  return count == 0 ? addRecording() : Call{"delete_statistic_recording", {{u"index"_s, bounded(count)}}};
}

Random_Tools_Test::Call Random_Tools_Test::edit() {
  static constexpr Choice cChoices[] = {
      &Random_Tools_Test::addPage,           &Random_Tools_Test::addBlock,
      &Random_Tools_Test::addBlock,          &Random_Tools_Test::addBlock,
      &Random_Tools_Test::deleteBlock,       &Random_Tools_Test::updateBlock,
      &Random_Tools_Test::updateBlock,       &Random_Tools_Test::connectPins,
      &Random_Tools_Test::connectPins,       &Random_Tools_Test::connectPins,
      &Random_Tools_Test::disconnectPin,     &Random_Tools_Test::setScript,
      &Random_Tools_Test::setPageController, &Random_Tools_Test::createAddress,
      &Random_Tools_Test::createAddress,     &Random_Tools_Test::updateAddress,
      &Random_Tools_Test::deleteAddress,     &Random_Tools_Test::assignAddress,
      &Random_Tools_Test::assignAddress,     &Random_Tools_Test::assignAddresses,
      &Random_Tools_Test::generateAddresses, &Random_Tools_Test::importAddresses,
      &Random_Tools_Test::setModbus,         &Random_Tools_Test::setRegisters,
      &Random_Tools_Test::addRegister,       &Random_Tools_Test::updateRegister,
      &Random_Tools_Test::deleteRegister,    &Random_Tools_Test::addConnection,
      &Random_Tools_Test::updateConnection,  &Random_Tools_Test::deleteConnection,
      &Random_Tools_Test::selectConnection,  &Random_Tools_Test::setControllers,
      &Random_Tools_Test::addRecording,      &Random_Tools_Test::updateRecording,
      &Random_Tools_Test::deleteRecording,
  };
  return (this->*any(cChoices))();
}

/// False when the call was refused. Fails the test when a refusal changed something, or a change is not one step.
bool Random_Tools_Test::makeOne() {
  const Call call = edit();
  const QString tool = QLatin1String(call.mTool);
  if (!mRig.mDispatcher.catalogue().find(tool)) {
    return false;
  }
  const size_t steps = mRig.mSession.history().position();
  const QJsonObject object = mRig.call(tool, call.mArguments);
  const bool isRefused = object.contains("error");
  const QByteArray after = state();
  const size_t added = mRig.mSession.history().position() - steps;
  if (added != (after == mState ? 0U : 1U) || (isRefused && added != 0)) {
    const QByteArray arguments = QJsonDocument(call.mArguments).toJson(QJsonDocument::Compact);
    QTest::qFail(QByteArray::number(quint64(added)) + " steps of " + call.mTool + ' ' + arguments, __FILE__, __LINE__);
  }
  mState = after;
  if (isRefused) {
    mRefused.insert(call.mTool, object.value("error").toString());
  } else {
    ++mTaken[call.mTool];
  }
  return !isRefused;
}

void Random_Tools_Test::everythingComesBack() {
  if (mRig.mDispatcher.catalogue().tools().empty()) {
    QSKIP("no tools are listed");
  }
  const quint32 seed = number("EDITS_SEED", QRandomGenerator::global()->generate());
  const quint32 count = number("EDITS_COUNT", cDefaultCount);
  qInfo("%u calls with seed %u", count, seed);
  mRandom.seed(seed);
  History& history = mRig.mSession.history();
  mState = state();
  quint32 taken = 0;
  quint32 attempts = 0;
  while (taken < count) {
    const QByteArray before = mState;
    history.clear();
    for (quint32 end = std::min(count, taken + cRound); taken < end;) {
      taken += makeOne() ? 1 : 0;
      QVERIFY2(++attempts < 10 * count, "nearly all calls are refused");
      if (QTest::currentTestFailed()) {
        return;
      }
    }
    const QByteArray after = mState;
    while (history.undo()) {
    }
    QCOMPARE(state(), before);
    while (history.redo()) {
    }
    QCOMPARE(state(), after);
  }
  for (auto refused = mRefused.cbegin(); refused != mRefused.cend(); ++refused) {
    qInfo("%s taken %d times, refused as in: %s", refused.key().constData(), mTaken.value(refused.key()),
          qPrintable(refused.value()));
    QVERIFY2(mTaken.contains(refused.key()), refused.key());
  }
}

QTEST_GUILESS_MAIN(Random_Tools_Test)
#include "Random_Tools_Test.moc"
