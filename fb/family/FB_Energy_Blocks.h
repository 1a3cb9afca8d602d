#pragma once

#include "fb/FB_Base.h"
#include "fb/FB_HS_Base.h"

// Blocks of energy management: their types' declarations say all that there is to say.

class FB_PV_Hot_Water final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_PV_Load final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_PV_Running_Time final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Constant_Light final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Wallbox_General final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Wallbox_KEBA final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Wallbox_NRGkick final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Wallbox_GoE final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_OCPP_Wallbox final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_OCPP_Central final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Marstek_Storage final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Wallbox_Load_Management final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Awattar final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Day_Ahead_Prices final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_EFriends final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_PV_Forecast final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
