#pragma once

#include "fb/FB_Base.h"

// Blocks of telegrams of the bus: their types' declarations say all that there is to say.

class FB_Assign_To_1_1_KNX final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Assign_To_1_N_KNX final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Assign_To_1_N_KNX_Value final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Telegram_Monitoring final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Feedback_Monitoring final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Telegram_Input final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Telegram_Output final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Cyclic_Read final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Cyclic_Send final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Read_Trigger final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Time_Server final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Time_Decoder final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Time_Client final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Gate final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Partition_Wall final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Dimmer_4_Bit final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_RGBW_Converter final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
