#include "base/App_Settings.h"
#include "tests/db/Session_Rig.h"
#include "ui/Address_Import_Dialog.h"
#include "ui/Theme.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

QByteArray exportOf(const QByteArray& addresses) {
  return "<GroupAddress-Export xmlns='http://knx.org/xml/ga-export/01'>\n" + addresses + "</GroupAddress-Export>\n";
}

QByteArray address(const char* number, const char* name) {
  return QByteArray("<GroupAddress Name='") + name + "' Address='" + number + "'/>\n";
}

} // namespace

/// The import's window, used through its keys and read from its widgets.
class Address_Import_Dialog_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mRig->addAddress({1, 1, 1}, u"Licht"_s);
    mRig->addAddress({1, 1, 2}, u"weg"_s);
    mSettings = std::make_unique<App_Settings>(mRig->path(u"studio.ini"_s));
    open();
  }

  void cleanup() {
    mDialog.reset();
    mSettings.reset();
    mRig.reset();
  }

  void whatIsTickedIsImported() {
    choose(exportOf(address("1/1/1", "Lampe") + address("1/1/3", "neu") + address("1/1/4", "auch neu")));
    QTRY_COMPARE(cells(0), (QStringList{u"1/1/1"_s, u"1/1/2"_s, u"1/1/3"_s, u"1/1/4"_s}));
    QCOMPARE(cells(1), (QStringList{u"Geändert"_s, u"Entfällt"_s, u"Neu"_s, u"Neu"_s}));
    QCOMPARE(import()->text(), u"3 überneh&men"_s);
    QVERIFY(!import()->isDefault() && mDialog->findChild<QPushButton*>(u"mImport"_s)->isEnabled());
    mTree->setCurrentIndex(mTree->model()->index(3, 0));
    QTest::keyClick(mTree, Qt::Key_Space);
    mTree->setCurrentIndex(mTree->model()->index(1, 5));
    QTest::keyClick(mTree, Qt::Key_Return);
    QCOMPARE(mDialog->findChild<QLabel*>(u"mTicked"_s)->text(), u"1 Adresse wird gelöscht."_s);
    QTest::mouseClick(import(), Qt::LeftButton);
    QCOMPARE(mDialog->result(), int(QDialog::Accepted));
    const Address_Tree& tree = mRig->mSession.database().mAddresses;
    QCOMPARE(tree.subGroup({1, 1, 1})->mName, u"Lampe"_s);
    QVERIFY(!tree.subGroup({1, 1, 2}) && tree.subGroup({1, 1, 3}) && !tree.subGroup({1, 1, 4}));
    QCOMPARE(mRig->mSession.history().undoText(), u"Adressen importieren"_s);
  }

  void optionsFiltersAndOrder() {
    choose(exportOf(address("1/1/1", "Lampe") + address("1/1/3", "b") + address("1/1/4", "A")));
    QTRY_COMPARE(mTree->model()->rowCount(), 4);
    mTree->sortByColumn(3, Qt::DescendingOrder);
    QCOMPARE(cells(3), (QStringList{u"Lampe"_s, u"b"_s, u"A"_s, QString()}));
    QTest::keyClicks(mDialog->findChild<QLineEdit*>(u"mImportFilter"_s), u"neu A"_s);
    QTRY_COMPARE(cells(0), (QStringList{u"1/1/4"_s}));
    press(u"Keine"_s);
    QCOMPARE(import()->text(), u"2 überneh&men"_s);
    QTest::keyClick(mDialog->findChild<QLineEdit*>(u"mImportFilter"_s), Qt::Key_Escape);
    QTRY_COMPARE(mTree->model()->rowCount(), 4);
    press(u"Neu 2"_s);
    QCOMPARE(cells(0), (QStringList{u"1/1/1"_s, u"1/1/2"_s}));
    press(u"Alle anhaken"_s);
    QCOMPARE(import()->text(), u"3 überneh&men"_s);
    mDialog->findChild<QCheckBox*>(u"mNewOnly"_s)->click();
    QCOMPARE(import()->text(), u"1 überneh&men"_s); // 1/1/4 lost its tick by hand
    QVERIFY(mDialog->isVisible());
  }

  void ticksSetByHandStayWithOtherOptions() {
    choose(exportOf(address("1/1/1", "Lampe") + address("1/1/3", "b") + address("1/1/4", "A")));
    QTRY_COMPARE(import()->text(), u"3 überneh&men"_s);
    mTree->setCurrentIndex(mTree->model()->index(0, 0));
    QTest::keyClick(mTree, Qt::Key_Space);
    mDialog->findChild<QCheckBox*>(u"mNewOnly"_s)->click();
    QCOMPARE(import()->text(), u"2 überneh&men"_s);
    mDialog->findChild<QCheckBox*>(u"mNewOnly"_s)->click();
    QCOMPARE(import()->text(), u"2 überneh&men"_s);
    // Another file, or the same one once more, begins anew.
    choose(exportOf(address("1/1/1", "Leuchte")));
    QTRY_COMPARE(import()->text(), u"1 überneh&men"_s);
  }

  void theFormatCanBeChosen() {
    choose(exportOf(address("1/1/3", "neu")));
    QTRY_VERIFY(import()->isEnabled());
    auto* const format = mDialog->findChild<QComboBox*>(u"mFormat"_s);
    const auto* const error = mDialog->findChild<QLabel*>(u"mErrorText"_s);
    format->setCurrentIndex(format->findText(u"CSV"_s));
    QTRY_VERIFY(error->isVisible());
    QVERIFY(!import()->isEnabled());
    format->setCurrentIndex(format->findText(u"XML"_s));
    QTRY_VERIFY(import()->isEnabled() && !error->isVisible());
  }

  void faultsAndErrorsAreToldInPlace() {
    choose(exportOf(address("1/1/3", "neu") + address("99/1/3", "falsch")));
    QTRY_VERIFY(mDialog->findChild<QPlainTextEdit*>(u"mFaultTexts"_s)->isVisible());
    QVERIFY(mDialog->findChild<QPlainTextEdit*>(u"mFaultTexts"_s)->toPlainText().startsWith(u"Zeile 3: "_s));
    auto* const error = mDialog->findChild<QLabel*>(u"mErrorText"_s);
    for (const auto& [path, told] :
         {std::pair(mRig->path(u"fehlt.xml"_s), u"Die Datei gibt es nicht."_s), {mRig->folder(), u"ein Ordner"_s}}) {
      type(path);
      QTRY_VERIFY(error->isVisible() && error->text().contains(told));
      QVERIFY(!import()->isEnabled() && !import()->toolTip().isEmpty());
      QCOMPARE(mTree->model()->rowCount(), 0);
      QVERIFY(!mDialog->findChild<QPlainTextEdit*>(u"mFaultTexts"_s)->isVisible());
    }
    choose(exportOf(address("1/1/3", "neu")));
    QTRY_VERIFY(import()->isEnabled() && !error->isVisible());
    mRig->mState.setOperatingMode(true);
    QVERIFY(!import()->isEnabled());
  }

  /// A file that takes long: closing neither waits for all of it nor leaves the thread behind.
  void closingStopsTheReading() {
    QByteArray many;
    for (int i = 0; i < 300'000; ++i) {
      many += address("1/1/3", "neu");
    }
    for (const bool isProjectClosed : {false, true}) {
      open();
      choose(exportOf(many));
      QVERIFY(!import()->isEnabled());
      if (isProjectClosed) {
        mRig->mSession.close();
      } else {
        QTest::keyClick(mDialog.get(), Qt::Key_Escape);
      }
      QVERIFY(!mDialog->isVisible());
      QCOMPARE(mDialog->result(), int(QDialog::Rejected));
    }
  }

  void longReadingShowsProgressAndCanBeCancelled() {
    QByteArray many;
    for (int i = 0; i < 900'000; ++i) {
      many += address("1/1/3", "neu");
    }
    choose(exportOf(many));
    QTRY_VERIFY(button(u"Lesen abbrechen"_s)->isVisible());
    press(u"Lesen abbrechen"_s);
    const auto* const text = mDialog->findChild<QLabel*>(u"mErrorText"_s);
    QCOMPARE(text->text(), u"Das Lesen wurde abgebrochen."_s);
    QCOMPARE(text->palette().color(QPalette::WindowText), Theme::color(Theme::Role::SecondaryText));
    QVERIFY(mDialog->isVisible() && !import()->isEnabled());
  }

  void aDroppedFileIsRead() {
    write(exportOf(address("1/1/3", "neu")));
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(mRig->path(u"export.xml"_s))});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(mDialog.get(), &enter);
    QVERIFY(enter.isAccepted() && enter.dropAction() == Qt::CopyAction);
    QDropEvent drop({50, 50}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(mDialog.get(), &drop);
    QTRY_VERIFY(import()->isEnabled());
    QCOMPARE(mDialog->folder(), mRig->folder());
  }

  void tabGoesAsOneReads() {
    choose(exportOf(address("1/1/3", "neu")));
    QTRY_VERIFY(import()->isEnabled());
    QWidget* const first = mDialog->findChild<QLineEdit*>(u"mPath"_s);
    first->setFocus();
    std::vector<QPoint> places;
    do {
      places.push_back(QApplication::focusWidget()->mapTo(mDialog.get(), QPoint(0, 0)));
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    } while (QApplication::focusWidget() != first && places.size() < 30);
    QVERIFY(places.size() > 10 && places.size() < 30);
    constexpr int cRowHeight = 20;
    QVERIFY(std::is_sorted(places.begin(), places.end(), [](const QPoint& a, const QPoint& b) {
      return std::pair(a.y() / cRowHeight, a.x()) < std::pair(b.y() / cRowHeight, b.x());
    }));
  }

  void accessKeysAreUnique() {
    QStringList keys;
    static const QRegularExpression key(u"&(\\w)"_s);
    const auto note = [&keys](const QString& text) {
      const QRegularExpressionMatch match = key.match(text);
      if (match.hasMatch()) {
        keys.append(match.captured(1).toLower());
      }
    };
    for (const auto* const widget : mDialog->findChildren<QAbstractButton*>()) {
      note(widget->text());
    }
    for (const auto* const widget : mDialog->findChildren<QLabel*>()) {
      note(widget->text());
    }
    QVERIFY(keys.size() > 15);
    QCOMPARE(keys.removeDuplicates(), 0);
  }

private:
  void open() {
    mDialog = std::make_unique<Address_Import_Dialog>(mRig->mSession, *mSettings, mRig->folder());
    mDialog->show();
    QVERIFY(QTest::qWaitForWindowActive(mDialog.get()));
    mTree = mDialog->findChild<QTreeView*>(u"mImportRows"_s);
    new QAbstractItemModelTester(mTree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest, mDialog.get());
  }

  void write(const QByteArray& bytes) {
    QFile file(mRig->path(u"export.xml"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
  }

  void type(const QString& path) {
    auto* const field = mDialog->findChild<QLineEdit*>(u"mPath"_s);
    field->setText(path);
    QTest::keyClick(field, Qt::Key_Return);
  }

  void choose(const QByteArray& bytes) {
    write(bytes);
    type(mRig->path(u"export.xml"_s));
  }

  [[nodiscard]] QPushButton* import() const { return mDialog->findChild<QPushButton*>(u"mImport"_s); }

  [[nodiscard]] QAbstractButton* button(const QString& text) const {
    for (auto* const button : mDialog->findChildren<QAbstractButton*>()) {
      if (button->text().remove(u'&') == text) {
        return button;
      }
    }
    return nullptr;
  }

  void press(const QString& text) {
    QAbstractButton* const pressed = button(text);
    QVERIFY2(pressed && pressed->isEnabled(), qPrintable(text));
    pressed->click();
  }

  [[nodiscard]] QStringList cells(int column) const {
    QStringList cells;
    for (int row = 0; row < mTree->model()->rowCount(); ++row) {
      cells.append(mTree->model()->index(row, column).data().toString());
    }
    return cells;
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<App_Settings> mSettings;
  std::unique_ptr<Address_Import_Dialog> mDialog;
  QTreeView* mTree = nullptr;
};

QTEST_MAIN(Address_Import_Dialog_Test)
#include "Address_Import_Dialog_Test.moc"
