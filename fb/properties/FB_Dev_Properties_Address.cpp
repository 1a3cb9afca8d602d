#include "fb/properties/FB_Dev_Properties_Address.h"

FB_Dev_Properties_Address::FB_Dev_Properties_Address(Project_Session& /*session*/, App_Settings& /*settings*/,
                                                     QWidget* parent)
    : QWidget(parent) {}

void FB_Dev_Properties_Address::showBlocks(FB_Page& /*page*/) {}

void FB_Dev_Properties_Address::clear() {}
