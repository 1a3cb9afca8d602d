#pragma once

#include "net/Controller_Exchange.h"

class App_Settings;
class Controller_Link;
class Controller_Questions;
class Project_Session;

/// What the dialogs about the controller work with; all of it outlives them.
struct Controller_Access {
  Controller_Link& mLink;
  Project_Session& mSession;
  App_Settings& mSettings;
  Controller_Questions& mQuestions;
  int mTimeoutMs = Controller_Exchange::cTimeoutMs; ///< how long a reply is waited for
};
