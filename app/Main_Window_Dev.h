#pragma once

#include "app/Action_Table.h"
#include "app/Main_Window_Base.h"
#include "base/Setting_Table.h"
#include "db/History.h"

#include <memory>

class Address_Exchange;
class Address_Search_Dialog;
class Assistant_Studio;
class Command_Palette;
class Dev_Select_Connection;
class Edit_Target;
class FB_Block_Editors;
class FB_Help_Window;
class FB_Output_Check_Dialog;
class FB_Page;
class FB_Page_List_Commands;
class FB_Usages_Dialog;
class Invalid_Address_Dialog;
class MCP_Server;
class Project_Lifecycle;
class Project_Search_Dialog;
class QLabel;
class Result_Dialog;
class Session_State;
class Window_Actions;
class Window_Dialogs;
class Window_Link;

/// The studio's one window: each command of the action table is a slot here, which passes it on to the part that does
/// the work.
class Main_Window_Dev : public Main_Window_Base {
  Q_OBJECT

public:
  /// All of them must outlive the window. On a kiosk the operating mode is on. `mcpPort` is the port of the assistant's
  /// server for this run, -1 for that of the settings.
  Main_Window_Dev(Project_Session& session, App_Settings& settings, Session_State& state, bool isKiosk,
                  int mcpPort = -1);
  ~Main_Window_Dev() override;

  [[nodiscard]] Project_Lifecycle& lifecycle() { return *mLifecycle; }
  /// The studio as an assistant's tools see it.
  [[nodiscard]] Assistant_Studio& assistant() { return *mAssistant; }

public slots:
  void onMenuFileNew();
  void onMenuFileOpen();
  void onMenuFileDemo();
  void onMenuFileSave();
  void onMenuFileSaveAs();
  void onMenuFileClose();
  void onMenuFileQuit();
  void onShowWelcome();
  void onEdit_Undo();
  void onEdit_Redo();
  void onEditCut();
  void onEditCopy();
  void onEdit_Paste();
  void onEditDelete();
  void onEditDuplicate();
  void onEditSelectAll();
  void onEdit_Search();
  void onEditFindReplace();
  void onEditChangeView();
  void onEditGeopos();
  void onEdit_ODBC_Import();
  void onEdit_ODBC_Export();
  void onEdit_Search_Unused();
  void onEdit_CheckValidAddress();
  void onShowPalette();
  void onPagePrevious();
  void onPageNext();
  void onPageClose();
  void onShowWork();
  void onShowNavigation();
  void onShowVariables();
  void onZoom_Plus();
  void onZoom_Minus();
  void onZoom_Reset();
  void onZoom_Fit();
  void onZoom_Selection();
  void onEditRasterOnOff();
  void onEditNewPageProgram();
  void onPageProperties();
  void onProgramWireStyle();
  void onProgramShowDebug();
  void onProgramKeepOutputsOnCopy();
  void onProgramShowOrder();
  void onProgramProgram_Left();
  void onProgramTop();
  void onProgramRight();
  void onProgramBottom();
  void onProgramRasterHorizontal();
  void onProgramRasterVertical();
  void onProgramAlign_Raster();
  void onEdit_MultipleUsedOutputs();
  void onEditStatistic();
  void onControllerList();
  void onControllerSelectConnection();
  void onControllerConnect();
  void onControlPlay();
  void onControllerSavePersistentProjectAsk();
  void onControllerDownloadProject();
  void onControllerCompareProject();
  void onControllerSavePersistentValues();
  void onControllerDownloadPersistentValues();
  void onControllerUploadPersistentValues();
  void onControllerBackupController();
  void onControllerRestoreBackup();
  void onControllerGetInformation();
  void onControllerSytemClock();
  void onControllerReboot();
  void onControllerFactoryReset();
  void onExtrasSettingsDev();
  void onSelectLanguage(QAction* action);
  void onHelp_Context();
  void onHelp_Browser();
  void onHelp_Search();
  void onShowAboutDlg();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  [[nodiscard]] Steps stepsOfWindow();
  void connectParts();
  void connectProjectLists();
  void connectPalette();
  void makeModeMark();
  void makeAutosave();
  [[nodiscard]] Action_State actionState() const;
  void updateActions();
  void updateProjectLists();
  void onOpenPath(const QString& path);
  void openLoaded(const QString& path);
  void onCommand(const QString& slot);
  void onBuildEditors(int percent);
  void toggle(Setting setting);
  void connectPageCommands();
  void connectLink();
  void startAssistant(int port);
  void connectLogicPage(FB_Page& page);
  void followSelection(FB_Page& page);
  void followStep(const std::vector<History::Applied>& records);
  void showFirstLogicPage();
  void insertBlock(int type);
  template <class Dialog>
  Dialog& resultDialog(Dialog*& dialog) {
    if (!dialog) {
      dialog = new Dialog(mSession, mSettings, this);
      connectResults(*dialog);
    }
    return *dialog;
  }
  void connectResults(Result_Dialog& dialog);
  void shareKeys(QWidget& dialog);
  void search(bool isReplacing);
  [[nodiscard]] QString contextPage();
  [[nodiscard]] FB_Help_Window& help();
  void showHelp(const QString& page);

  Session_State& mState;
  std::unique_ptr<Window_Dialogs> mDialogs;
  Window_Actions* mActions;
  Project_Lifecycle* mLifecycle;
  Address_Exchange* mExchange;
  FB_Page_List_Commands* mPageCommands;
  FB_Block_Editors* mEditors;
  Window_Link* mLink;
  Assistant_Studio* mAssistant = nullptr;
  MCP_Server* mServer = nullptr; ///< none when no port is set
  Edit_Target* mEditTarget;
  Command_Palette* mPalette;
  QLabel* mModeMark = nullptr;                     ///< seen while the operating mode is on
  Address_Search_Dialog* mAddressSearch = nullptr; ///< made when first asked for, as those below
  Invalid_Address_Dialog* mInvalidAddresses = nullptr;
  Project_Search_Dialog* mProjectSearch = nullptr;
  FB_Usages_Dialog* mUsages = nullptr;
  FB_Output_Check_Dialog* mOutputCheck = nullptr;
  FB_Help_Window* mHelp = nullptr;
  Dev_Select_Connection* mConnections = nullptr;
};
