#include "app/Project_Drop.h"

#include "app/Project_Lifecycle.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace {

/// The first project file among what is dragged; empty when there is none.
QString projectIn(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    QString path = url.toLocalFile();
    if (path.contains(QStringLiteral(".zpro"), Qt::CaseInsensitive)) {
      return path;
    }
  }
  return {};
}

/// A "move" would have the other program delete the file afterwards.
void acceptAsCopy(QDropEvent& event) {
  if (event.possibleActions() & Qt::CopyAction) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
  }
}

} // namespace

Project_Drop::Project_Drop(QWidget& window, Project_Lifecycle& lifecycle) : QObject(&window), mLifecycle(lifecycle) {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

bool Project_Drop::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::DragEnter) {
    auto& drag = static_cast<QDropEvent&>(*event);
    if (!mLifecycle.isBusy() && !projectIn(*drag.mimeData()).isEmpty()) {
      acceptAsCopy(drag);
    }
    return true;
  }
  if (event->type() == QEvent::Drop) {
    drop(static_cast<QDropEvent&>(*event));
    return true;
  }
  return QObject::eventFilter(object, event);
}

void Project_Drop::drop(QDropEvent& event) {
  acceptAsCopy(event);
  // The program that the file comes from waits until this is over, so no question may be asked in here.
  QTimer::singleShot(0, this, [this, path = projectIn(*event.mimeData())] { mLifecycle.open(path); });
}
