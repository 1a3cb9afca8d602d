#include "mcp/MCP_Catalogue.h"

#include "mcp/tools/Address_Tools.h"
#include "mcp/tools/Connection_Tools.h"
#include "mcp/tools/Controller_Tools.h"
#include "mcp/tools/Logic_Tools.h"
#include "mcp/tools/Modbus_Tools.h"
#include "mcp/tools/Project_Tools.h"
#include "mcp/tools/Statistic_Tools.h"

#include <QJsonArray>
#include <QSet>

#include <algorithm>

namespace {

std::vector<MCP_Tool> allFamilies() {
  std::vector<MCP_Tool> tools;
  for (const auto& family : {Project_Tools::all, Logic_Tools::all, Address_Tools::all, Modbus_Tools::all,
                             Connection_Tools::all, Controller_Tools::all, Statistic_Tools::all}) {
    std::ranges::move(family(), std::back_inserter(tools));
  }
  return tools;
}

} // namespace

const QStringList& MCP_Catalogue::names() {
  // clang-format off
  static const QStringList names{
      QStringLiteral("get_project_info"),
      QStringLiteral("list_widget_pages"),
      QStringLiteral("get_widget_page"),
      QStringLiteral("add_widget_page"),
      QStringLiteral("delete_widget_page"),
      QStringLiteral("add_widget"),
      QStringLiteral("update_widget"),
      QStringLiteral("connect_widget_to_fb"),
      QStringLiteral("delete_widget"),
      QStringLiteral("list_fb_pages"),
      QStringLiteral("get_fb_page"),
      QStringLiteral("add_fb_page"),
      QStringLiteral("add_function_block"),
      QStringLiteral("delete_function_block"),
      QStringLiteral("list_addresses"),
      QStringLiteral("save_project"),
      QStringLiteral("open_project"),
      QStringLiteral("save_project_as"),
      QStringLiteral("new_project"),
      QStringLiteral("list_connections"),
      QStringLiteral("add_connection"),
      QStringLiteral("update_connection"),
      QStringLiteral("delete_connection"),
      QStringLiteral("select_connection"),
      QStringLiteral("get_widget_detail"),
      QStringLiteral("set_widget_addresses"),
      QStringLiteral("get_widget_type_info"),
      QStringLiteral("get_fb_detail"),
      QStringLiteral("update_fb"),
      QStringLiteral("get_fb_type_info"),
      QStringLiteral("list_fb_types"),
      QStringLiteral("list_widget_types"),
      QStringLiteral("list_help_topics"),
      QStringLiteral("get_help"),
      QStringLiteral("connect_fb_io"),
      QStringLiteral("disconnect_fb_io"),
      QStringLiteral("list_fb_connections"),
      QStringLiteral("create_address"),
      QStringLiteral("update_address"),
      QStringLiteral("delete_address"),
      QStringLiteral("assign_fb_io_address"),
      QStringLiteral("assign_fb_io_addresses_batch"),
      QStringLiteral("ui_navigate"),
      QStringLiteral("generate_fb_addresses"),
      QStringLiteral("import_knx_addresses"),
      QStringLiteral("get_modbus_master_config"),
      QStringLiteral("set_modbus_master_config"),
      QStringLiteral("set_modbus_master_registers"),
      QStringLiteral("add_modbus_master_register"),
      QStringLiteral("update_modbus_master_register"),
      QStringLiteral("delete_modbus_master_register"),
      QStringLiteral("get_block_clock_schedules"),
      QStringLiteral("set_block_clock_schedules"),
      QStringLiteral("get_block_clock_steps"),
      QStringLiteral("set_block_clock_steps"),
      QStringLiteral("add_block_clock_schedule"),
      QStringLiteral("update_block_clock_schedule"),
      QStringLiteral("delete_block_clock_schedule"),
      QStringLiteral("get_block_element_schedules"),
      QStringLiteral("set_block_element_schedules"),
      QStringLiteral("add_block_element_schedule"),
      QStringLiteral("update_block_element_schedule"),
      QStringLiteral("delete_block_element_schedule"),
      QStringLiteral("get_block_element_presence"),
      QStringLiteral("set_block_element_presence"),
      QStringLiteral("get_block_element_settings"),
      QStringLiteral("set_block_element_settings"),
      QStringLiteral("get_irrigation_programs"),
      QStringLiteral("set_irrigation_programs"),
      QStringLiteral("set_play_mode"),
      QStringLiteral("get_play_mode"),
      QStringLiteral("get_controller_list"),
      QStringLiteral("set_controller_list"),
      QStringLiteral("set_fb_page_controller"),
      QStringLiteral("get_statistic_recordings"),
      QStringLiteral("add_statistic_recording"),
      QStringLiteral("update_statistic_recording"),
      QStringLiteral("delete_statistic_recording"),
      QStringLiteral("get_controller_status"),
      QStringLiteral("set_controller_index"),
      QStringLiteral("write_project_to_controller"),
      QStringLiteral("connect_runtime"),
      QStringLiteral("set_address_value"),
      QStringLiteral("get_address_value"),
      QStringLiteral("get_presence_mode"),
      QStringLiteral("set_presence_mode"),
      QStringLiteral("get_diagnostic_messages"),
      QStringLiteral("set_diagnostic_capture"),
      QStringLiteral("set_debug_level"),
      QStringLiteral("set_lua_script"),
      QStringLiteral("get_lua_api_reference"),
      QStringLiteral("list_styles"),
      QStringLiteral("get_style_detail"),
      QStringLiteral("update_style"),
      QStringLiteral("update_style_page"),
      QStringLiteral("apply_style_template"),
      QStringLiteral("set_active_style"),
      QStringLiteral("list_style_images"),
      QStringLiteral("add_project_image"),
      QStringLiteral("set_widget_image"),
      QStringLiteral("derive_project_structure"),
      QStringLiteral("get_project_structure"),
      QStringLiteral("set_project_structure"),
      QStringLiteral("run_project_generator"),
      QStringLiteral("add_block_element"),
      QStringLiteral("add_block_elements"),
      QStringLiteral("arrange_widgets"),
  };
  // clang-format on
  return names;
}

MCP_Catalogue::MCP_Catalogue() : MCP_Catalogue(allFamilies()) {}

MCP_Catalogue::MCP_Catalogue(std::vector<MCP_Tool> tools) : mTools(std::move(tools)) {
  std::ranges::stable_sort(mTools, {}, [](const MCP_Tool& tool) { return names().indexOf(tool.mName); });
  QJsonArray list;
  for (qsizetype index = 0; index < qsizetype(mTools.size()); ++index) {
    mByName.insert(mTools[size_t(index)].mName, index);
    list.append(mTools[size_t(index)].toJson());
  }
  mList = {{QStringLiteral("tools"), list}};
  Q_ASSERT_X(faults().isEmpty(), "MCP_Catalogue", qPrintable(faults().join(u'\n')));
}

const MCP_Tool* MCP_Catalogue::find(const QString& name) const {
  const auto found = mByName.constFind(name);
  return found == mByName.cend() ? nullptr : &mTools[size_t(*found)];
}

QStringList MCP_Catalogue::faults() const {
  QStringList faults;
  QSet<QString> seen;
  for (const MCP_Tool& tool : mTools) {
    if (!names().contains(tool.mName)) {
      faults.append(QStringLiteral("%1 is no published name").arg(tool.mName));
    }
    if (seen.contains(tool.mName)) {
      faults.append(QStringLiteral("%1 is declared twice").arg(tool.mName));
    }
    seen.insert(tool.mName);
    if (!tool.mHandler || tool.mDescription.isEmpty()) {
      faults.append(QStringLiteral("%1 lacks handler or description").arg(tool.mName));
    }
    QSet<QString> parameters;
    for (const MCP_Parameter& parameter : tool.mParameters) {
      if (parameters.contains(parameter.name()) || parameter.description().isEmpty()) {
        faults.append(QStringLiteral("%1: %2 twice or without description").arg(tool.mName, parameter.name()));
      }
      parameters.insert(parameter.name());
    }
  }
  return faults;
}
