#include "fb/properties/FB_Dev_Properties_Page.h"

FB_Dev_Properties_Page::FB_Dev_Properties_Page(Project_Session& /*session*/, App_Settings& /*settings*/,
                                               QWidget* parent)
    : QWidget(parent) {}

void FB_Dev_Properties_Page::showBlocks(FB_Page& /*page*/) {}

void FB_Dev_Properties_Page::clear() {}
