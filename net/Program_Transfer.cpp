#include "net/Program_Transfer.h"

#include "db/Project_Image.h"
#include "db/Project_Session.h"
#include "net/Controller_Command.h"

namespace {

constexpr int cPercent = 100;

} // namespace

Program_Transfer::Program_Transfer(Main_Network_Client& client, Project_Session& session, Options options,
                                   QObject* parent)
    : Controller_Exchange(client, parent),
      mSession(session),
      mOptions(options),
      mSender(client) {
  connect(&mSender, &Paced_Sender::moved, this, [this] {
    restartTimeout();
    emit progress(tr("Programm übertragen"), mProgram->percent(this->client().bytesToWrite()), cPercent);
  });
  connect(&session, &Project_Session::aboutToClose, this, [this] {
    if (isRunning()) {
      fail(tr("Das Projekt wurde geschlossen."));
    }
  });
}

Program_Transfer::~Program_Transfer() {
  if (isRunning()) {
    Program_Transfer::abort();
  }
}

void Program_Transfer::begin() {
  if (!mSession.isOpen()) {
    fail(tr("Es ist kein Projekt geöffnet."));
    return;
  }
  if (mOptions.mForce) {
    makeProgram();
    stage();
    return;
  }
  emit progress(tr("Programm vergleichen"), 0, 0);
  send(Controller_Command::Compare);
}

void Program_Transfer::makeProgram() {
  mProgram.emplace(Stream_Out::Commands{Controller_Command::Program_Begin, Controller_Command::Program_Data,
                                        Controller_Command::Program_End},
                   Project_Image::program(mSession.database()).toBytes());
}

void Program_Transfer::stage() {
  mStep = Step::Staging;
  emit progress(tr("Programm übertragen"), 0, cPercent);
  restartTimeout();
  mSender.start([this] {
    mMustForget = true;
    return mProgram->sendNext([this](quint32 command, QByteArrayView payload) { return send(command, payload); });
  });
}

void Program_Transfer::takeProject(QByteArrayView payload) {
  mControllerProject.setData(text(payload).toUtf8());
}

bool Program_Transfer::take(quint32 command, QByteArrayView payload) {
  if (mStep == Step::Comparing && command == Controller_Command::Compare_Reply) {
    takeProject(payload);
    makeProgram();
    const bool isSame = mProgram->announced().mSha256 == mControllerProject.mProgramDigest;
    if (isSame && (mControllerProject.mIsRunning || !mOptions.mStart)) {
      succeed();
    } else {
      stage();
    }
    return true;
  }
  if (mStep == Step::Staging && command == Controller_Command::Program_Staged && mProgram->isSent()) {
    mSender.stop();
    mWasSent = true;
    if (!mOptions.mStart) {
      succeed();
      return true;
    }
    mStep = Step::Starting;
    emit progress(tr("Programm starten"), cPercent, cPercent);
    send(Controller_Command::Program_Start);
    return true;
  }
  if (mStep == Step::Starting && command == Controller_Command::Program_Started) {
    takeProject(payload);
    succeed();
    return true;
  }
  return false;
}

void Program_Transfer::abort() {
  mSender.stop();
  if (mMustForget) {
    client().sendCommand(Controller_Command::Transfer_Abort);
  }
}
