#include "chartfolderlist.h"
#include "chartlist.h"
#include "hosttext.h"
#include "languages.h"
#include "mainwindow.h"
#include "testcase.h"

#include <chartrecordfile.h>
#include <spineditbox.h>
#include <translatemanager1.h>

#include <QAction>
#include <QActionGroup>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>

using namespace vardeno::testcharttools;

/// The reference host as its user sees it: every step goes through actions, buttons and keys.
class TestChartDesk : public TestCase
{
    Q_OBJECT

private:
    static QPushButton* button(MainWindow& window, const QString& text)
    {
        const auto buttons = window.editor()->findChildren<QPushButton*>();
        for (QPushButton* candidate : buttons) {
            if (candidate->isVisible() && candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }

    static bool click(MainWindow& window, const QString& text)
    {
        const auto ready = [&] { return button(window, text) && button(window, text)->isEnabled(); };
        if (!QTest::qWaitFor(ready))
            return false;
        QTest::mouseClick(button(window, text), Qt::LeftButton);
        return true;
    }

    static bool trigger(MainWindow& window, const QString& text)
    {
        const auto actions = window.findChildren<QAction*>();
        for (QAction* action : actions) {
            if (action->text() == text && action->isEnabled()) {
                action->trigger();
                return true;
            }
        }
        return false;
    }

    static bool listShown(MainWindow& window)
    {
        return qobject_cast<QStackedWidget*>(window.centralWidget())->currentIndex() == 0 &&
               !window.findChild<ChartList*>()->isFilling();
    }

    /// The editor's entry for the cabinet rows.
    static SpinEditBox* rowEntry(MainWindow& window)
    {
        const auto entries = window.editor()->findChildren<SpinEditBox*>();
        for (SpinEditBox* entry : entries) {
            if (entry->maximum() == 100 && entry->minimum() == 1)
                return entry;
        }
        return nullptr;
    }

    static bool addChart(MainWindow& window)
    {
        return trigger(window, QStringLiteral("New chart")) && click(window, QStringLiteral("Confirm")) &&
               QTest::qWaitFor([&] { return listShown(window); });
    }

    /// Opens it to be edited, in a later second than the one that names its folder.
    static bool openFirstChart(MainWindow& window)
    {
        QTest::qWait(1100);
        auto* list = window.findChild<QListWidget*>(QStringLiteral("chartList"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
        if (!trigger(window, QStringLiteral("Edit chart")))
            return false;
        const auto* mask = window.editor()->findChild<QWidget*>(QStringLiteral("maskWidget"));
        if (!QTest::qWaitFor([&] { return mask->isVisible(); }) ||
            !QTest::qWaitFor([&] { return mask->isHidden(); })) // painted, and no lock is to come
            return false;
        QCoreApplication::processEvents(); // the focus is given back
        return true;
    }

    static QJsonObject document(const QString& imagePath)
    {
        QFile file(ChartFolderList::recordPath(imagePath));
        return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                              : QJsonObject();
    }

    static bool store(const QString& imagePath, const QJsonObject& document)
    {
        QFile file(ChartFolderList::recordPath(imagePath));
        return file.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
               file.write(QJsonDocument(document).toJson()) > 0;
    }

    static QString newestChart(const QTemporaryDir& folder)
    {
        return ChartFolderList::charts(folder.path()).first().filePath();
    }

private Q_SLOTS:
    void cleanup()
    {
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void addedChartIsListedWithItsRecord()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(addChart(window));

        const QFileInfoList charts = ChartFolderList::charts(folder.path());
        QCOMPARE(charts.size(), 1);
        QCOMPARE(charts.first().fileName(), QStringLiteral("TestImage1.png"));
        QCOMPARE(QImage(charts.first().filePath()).size(), QSize(1920, 1080));
        QCOMPARE(window.findChild<QListWidget*>(QStringLiteral("chartList"))->count(), 1);

        const auto reading = ChartRecordFile::read(ChartFolderList::recordPath(charts.first().filePath()));
        QCOMPARE(reading.problems, QStringList());
        QCOMPARE(reading.record.publicData.outBorderWidth, 2);
        QCOMPARE(int(reading.record.basicData.colorStripeColors.size()), 5);
    }

    void aListedChartShowsItsOwnColors()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(addChart(window));
        auto* list = window.findChild<QListWidget*>(QStringLiteral("chartList"));
        QTRY_VERIFY(!list->item(0)->icon().isNull());
        const QRect cell = list->visualItemRect(list->item(0));
        QVERIFY(cell.left() < 10);
        const QRect picture(cell.left() + 12, cell.top() + 12, 240, 135);
        const QImage calm = list->viewport()->grab(picture).toImage();
        const QPixmap thumbnail = list->item(0)->icon().pixmap(picture.size());
        VD_COMPARE_IMAGES(calm, thumbnail.toImage().convertToFormat(calm.format()));

        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, cell.center());
        QVERIFY(list->item(0)->isSelected());
        VD_COMPARE_IMAGES(list->viewport()->grab(picture).toImage(), calm);
        const QPoint frame = cell.topLeft() + QPoint(cell.width() / 2, 4);
        QCOMPARE(list->viewport()->grab().toImage().pixelColor(frame),
                 list->palette().color(QPalette::Highlight));
    }

    void theWindowShowsTheEditorOrFillsTheScreen()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QSize room = window.screen()->availableSize();
        const QSize needed = window.editor()->size() + QSize(30, 30);
        QTRY_COMPARE(window.size().boundedTo(room), window.size());
        QVERIFY(window.isMaximized() || window.centralWidget()->size().boundedTo(needed) == needed);
    }

    void numbersGoOn()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(addChart(window));
        QVERIFY(addChart(window));
        QCOMPARE(ChartFolderList::nextNumber(folder.path(), chartNames()), 3);
    }

    void theSavedChartIsTheSelectedOne()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        const auto* list = window.findChild<QListWidget*>(QStringLiteral("chartList"));
        for (const char* name : {"TestImage1.png", "TestImage2.png", "TestImage3.png"}) {
            QVERIFY(addChart(window));
            QVERIFY(list->currentItem() && list->currentItem()->isSelected());
            QVERIFY2(list->currentItem()->text().startsWith(QLatin1String(name)),
                     qPrintable(list->currentItem()->text()));
        }
    }

    void editedChartReplacesTheOldOne()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(addChart(window));
        const QString first = ChartFolderList::charts(folder.path()).first().filePath();
        QVERIFY(openFirstChart(window));
        QVERIFY(button(window, QStringLiteral("Apply"))->isEnabled());
        SpinEditBox* rows = rowEntry(window);
        rows->setFocus();
        rows->selectAll();
        QTest::keyClicks(rows, QStringLiteral("4"));
        QTest::keyClick(rows, Qt::Key_Return);
        QVERIFY(click(window, QStringLiteral("Confirm")));
        QTRY_VERIFY(listShown(window));
        QCOMPARE(window.findChild<QListWidget*>(QStringLiteral("chartList"))->count(), 1);

        QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(first), 5000);
        const QFileInfoList charts = ChartFolderList::charts(folder.path());
        QCOMPARE(charts.size(), 1);
        const auto reading = ChartRecordFile::read(ChartFolderList::recordPath(charts.first().filePath()));
        QCOMPARE(reading.record.publicData.boxRow, 4);
    }

    void unknownMembersOutliveAnEdit()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(addChart(window));
        const QString first = newestChart(folder);
        QJsonObject record = document(first);
        record.insert(QStringLiteral("wall"), QJsonObject{{QStringLiteral("hall"), 4}});
        QVERIFY(store(first, record));

        QVERIFY(openFirstChart(window));
        QVERIFY(click(window, QStringLiteral("Apply")));
        QTRY_VERIFY(newestChart(folder) != first);
        const QString second = newestChart(folder);
        QTRY_COMPARE(document(second).value(QStringLiteral("wall")), record.value(QStringLiteral("wall")));
        QVERIFY(click(window, QStringLiteral("Cancel")));
        QTRY_VERIFY(listShown(window));

        QTest::qWait(1100);
        QVERIFY(addChart(window));
        QVERIFY(newestChart(folder) != second);
        QVERIFY(!document(newestChart(folder)).contains(QStringLiteral("wall")));
    }

    /// The replaced chart's folder is removed, with the pictures in it.
    void pictureOfTheReplacedChartGoesAlong()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(addChart(window));
        const QString first = newestChart(folder);
        QVERIFY(QFileInfo(first).dir().mkdir(QStringLiteral("pictures")));
        QImage picture(8, 8, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(QFileInfo(first).dir().filePath(QStringLiteral("pictures/logo.png"))));
        QJsonObject record = document(first);
        QJsonObject logo = record.value(QStringLiteral("logoData")).toObject();
        logo.insert(QStringLiteral("picturePath"), QStringLiteral("pictures/logo.png"));
        record.insert(QStringLiteral("logoData"), logo);
        QVERIFY(store(first, record));

        QVERIFY(openFirstChart(window));
        QVERIFY(click(window, QStringLiteral("Apply")));
        QTRY_VERIFY(newestChart(folder) != first);
        const QString second = newestChart(folder);
        QTRY_COMPARE(document(second).value(QStringLiteral("logoData")), QJsonValue(logo));
        QTRY_VERIFY_WITH_TIMEOUT(!QFileInfo::exists(first), 5000);
        QVERIFY(QFileInfo(second).dir().exists(QStringLiteral("pictures/logo.png")));
        QCOMPARE(QImage(QFileInfo(second).dir().filePath(QStringLiteral("pictures/logo.png"))), picture);
        const auto edited = window.editor()->getTestChartToolsData();
        QCOMPARE(QImage(QString::fromStdString(edited.logoData.picturePath)), picture);
    }

    void failureNamesTheFile()
    {
        QTemporaryDir folder;
        QFile blocker(folder.filePath(QStringLiteral("charts")));
        QVERIFY(blocker.open(QIODevice::WriteOnly)); // a file where the folder would have to be
        MainWindow window(blocker.fileName());
        window.show();
        QVERIFY(trigger(window, QStringLiteral("New chart")));
        QVERIFY(click(window, QStringLiteral("Confirm")));

        QTRY_VERIFY(window.findChild<QMessageBox*>());
        auto* box = window.findChild<QMessageBox*>();
        QVERIFY(box->informativeText().startsWith(blocker.fileName() + QLatin1Char('/')));
        QVERIFY(box->informativeText().endsWith(QStringLiteral("/TestImage1.png")));
        QVERIFY(!listShown(window));
        box->close();
    }

    void damagedRecordIsExplained()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(addChart(window));
        const QString image = ChartFolderList::charts(folder.path()).first().filePath();
        QFile record(ChartFolderList::recordPath(image));
        QVERIFY(record.open(QIODevice::WriteOnly | QIODevice::Truncate));
        record.write("{\"format\": \"testchart\", \"version\": 1, \"publicData\": {\"boxRow\": 5000}}");
        record.close();

        window.findChild<QListWidget*>(QStringLiteral("chartList"))->setCurrentRow(0);
        QVERIFY(trigger(window, QStringLiteral("Edit chart")));
        QTRY_VERIFY(window.findChild<QMessageBox*>());
        QVERIFY(window.findChild<QMessageBox*>()->informativeText().contains(
            QStringLiteral("publicData.boxRow: 5000 is not in 1..1000")));
        QVERIFY(listShown(window));
    }

    void cancelLeavesNothingBehind()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(trigger(window, QStringLiteral("New chart")));
        QVERIFY(click(window, QStringLiteral("Cancel")));
        QTRY_VERIFY(listShown(window));
        QCOMPARE(ChartFolderList::charts(folder.path()).size(), 0);
    }

    void offeredLanguages_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("newChart");
        QTest::addColumn<QString>("confirm");
        QTest::newRow("Deutsch") << "de"
                                 << "Neues Testbild"
                                 << "OK";
        QTest::newRow("English") << "en"
                                 << "New chart"
                                 << "Confirm";
        QTest::newRow("Español") << "es"
                                 << "Nueva carta"
                                 << "Aceptar";
        QTest::newRow("日本語") << "ja"
                                << "新規テストパターン"
                                << "決定";
        QTest::newRow("简体中文") << "zh_CN"
                                  << "新建测试图"
                                  << "确定";
    }

    /// The row's name is what the menu shows.
    void offeredLanguages()
    {
        QFETCH(QString, code);
        QFETCH(QString, newChart);
        QFETCH(QString, confirm);
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        QVERIFY(trigger(window, QString::fromUtf8(QTest::currentDataTag())));
        QCOMPARE(TranslateManager1::instance().translator().language(), code);
        const QAction* checked = window.findChild<QActionGroup*>()->checkedAction();
        QVERIFY(checked);
        QCOMPARE(checked->data().toString(), code);
        QVERIFY(trigger(window, newChart));
        QVERIFY(button(window, confirm));
    }

    void menuOffersTheLanguages()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        QStringList offered;
        const auto choices = window.findChild<QActionGroup*>()->actions();
        for (const QAction* choice : choices)
            offered.append(choice->text());
        QCOMPARE(offered, QStringList({"Deutsch", "English", "Español", "日本語", "简体中文"}));
        QCOMPARE(languages().size(), offered.size());
    }

    void languageOfTheSystem_data()
    {
        QTest::addColumn<QLocale>("locale");
        QTest::addColumn<QString>("code");
        QTest::newRow("language and country") << QLocale("zh_CN") << "zh_CN";
        QTest::newRow("another country, same script") << QLocale("zh_SG") << "zh_CN";
        QTest::newRow("a language of one file") << QLocale("de_AT") << "de";
        QTest::newRow("Latin America") << QLocale("es_MX") << "es";
        QTest::newRow("Japanese") << QLocale("ja_JP") << "ja";
        QTest::newRow("British") << QLocale("en_GB") << "en";
        QTest::newRow("one that no file is in") << QLocale("fi_FI") << "en";
        QTest::newRow("none") << QLocale::c() << "en";
    }

    void languageOfTheSystem()
    {
        QFETCH(QLocale, locale);
        QFETCH(QString, code);
        QCOMPARE(languageFor(locale), code);
    }

    void languageIsSwitchedInTheRunningWindow()
    {
        QTemporaryDir folder;
        MainWindow window(folder.path());
        window.show();
        window.switchLanguage(QStringLiteral("zh_CN"));
        QVERIFY(trigger(window, QStringLiteral("新建测试图")));
        QVERIFY(button(window, QStringLiteral("确定")));
        window.switchLanguage(QStringLiteral("en"));
        QVERIFY(button(window, QStringLiteral("Confirm")));
    }
};

VD_TEST_MAIN(TestChartDesk)
#include "tst_chartdesk.moc"
