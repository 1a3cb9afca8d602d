#pragma once

#include "fb/FB_Base.h"

// Blocks of buttons, mail, scripts and commands: their types' declarations say all that there is to say.

class FB_Button_Time final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Button_Pulse final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mail final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Execute_Command final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_FTP_Upload final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Shutter final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Blind final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Lua_Script final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Weather_OpenWeather final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
