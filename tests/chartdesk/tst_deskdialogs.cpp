#include "chartfiles.h"
#include "cuttexts.h"
#include "deskdialogs.h"
#include "deskoutput.h"
#include "desksettings.h"
#include "deskwindow.h"
#include "hosttext.h"
#include "languages.h"
#include "shortcomings.h"
#include "testcase.h"

#include <translatemanager1.h>

#include <QDialog>
#include <QTemporaryDir>

using namespace deskwindow;
using namespace shortcomings;

/// Every dialog of the desk, in every language.
class TestDeskDialogs : public TestCase
{
    Q_OBJECT

private:
    QScopedPointer<QTemporaryDir> m_folder;
    QScopedPointer<MainWindow> m_window;

    /// By the English text of its action.
    QDialog* open(const char* action)
    {
        const QString source = QString::fromUtf8(action);
        const QString wanted = source.isEmpty() ? source : hostText(source);
        if (!trigger(*m_window, wanted))
            return nullptr;
        for (QDialog* dialog : m_window->findChildren<QDialog*>()) {
            if (!dialog->isVisible())
                continue;
            dialog->activateWindow(); // where no window manager does
            return QTest::qWaitForWindowActive(dialog) ? dialog : nullptr;
        }
        return nullptr;
    }

    static void close(QDialog* dialog)
    {
        dialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// What a person reads in it: captions, buttons and tips.
    static QHash<QString, QString> texts(const QDialog& dialog)
    {
        QHash<QString, QString> found;
        for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
            const QString key = QLatin1String(widget->metaObject()->className()) + widget->objectName();
            const auto* button = qobject_cast<const QAbstractButton*>(widget);
            const auto* label = qobject_cast<const QLabel*>(widget);
            const QString text = button  ? button->text() + button->toolTip()
                                 : label ? label->text()
                                         : QString();
            if (!widget->objectName().isEmpty() && text.size() > 2)
                found.insert(key, text);
        }
        return found;
    }

private Q_SLOTS:
    void init()
    {
        TestCase::init();
        QCoreApplication::setApplicationName(QStringLiteral("deskdialogs-%1").arg(qApp->applicationPid()));
        m_folder.reset(new QTemporaryDir);
        const QString chart = m_folder->filePath(QStringLiteral("20260101_120000/wall.png"));
        QVERIFY(chartfiles::writeChart(chart, Qt::red));
        m_window.reset(new MainWindow(m_folder->path()));
        m_window->switchLanguage(QStringLiteral("en"));
        m_window->show();
        QVERIFY(isListed(*m_window));
        m_window->findChild<ChartList*>()->selectChart(chart);
    }

    void cleanup()
    {
        m_window.reset();
        QDir(QFileInfo(deskSettings().fileName()).path()).removeRecursively();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }

    void everyControlIsNamedAndReached_data()
    {
        QTest::addColumn<QByteArray>("action");
        for (const char* action : {"Rename…", "Tags…", "Export…", "Choose folder…", "New from…", "Show on…",
                                   "Keyboard shortcuts", "Manual", "About"})
            QTest::newRow(action) << QByteArray(action);
    }

    void everyControlIsNamedAndReached()
    {
        QFETCH(QByteArray, action);
        QDialog* dialog = open(action.constData());
        QVERIFY(dialog);
        QCOMPARE(shortcomingsOf(*dialog).join(QLatin1Char('\n')), QString());
        QCOMPARE(beyondTab(*dialog).join(QLatin1Char('\n')), QString());
        close(dialog);
    }

    void nothingIsCutInAnyLanguage_data() { everyControlIsNamedAndReached_data(); }

    void nothingIsCutInAnyLanguage()
    {
        QFETCH(QByteArray, action);
        for (const QString& language : languageCodes()) {
            m_window->switchLanguage(language);
            QDialog* dialog = open(action.constData());
            QVERIFY2(dialog, qPrintable(language));
            QStringList cut = cuttexts::in(*dialog);
            cut = cut.filter(
                QRegularExpression(QStringLiteral("^(?!QComboBox \"lookInCombo\")"))); // a path of any length
            QVERIFY2(cut.isEmpty(), qPrintable(language + QLatin1String(": ") + cut.join(QLatin1Char('\n'))));
            close(dialog);
        }
    }

    void theToolkitsTextsAreTranslated_data()
    {
        QTest::addColumn<QByteArray>("action");
        QTest::newRow("export") << QByteArray("Export…");
        QTest::newRow("folder") << QByteArray("Choose folder…");
    }

    void theToolkitsTextsAreTranslated()
    {
        QFETCH(QByteArray, action);
        QDialog* dialog = open(action.constData());
        QVERIFY(dialog);
        const QHash<QString, QString> english = texts(*dialog);
        QVERIFY(english.size() >= 8);
        close(dialog);
        for (const char* language : {"de", "es", "ja", "zh_CN"}) {
            m_window->switchLanguage(QLatin1String(language));
            dialog = open(action.constData());
            QVERIFY(dialog);
            const QHash<QString, QString> translated = texts(*dialog);
            close(dialog);
            for (auto it = english.cbegin(); it != english.cend(); ++it)
                QVERIFY2(translated.value(it.key()) != it.value(),
                         qPrintable(language + (": " + it.value())));
        }
    }

    void noWindowIsLargerThanItsScreen()
    {
        QWidget window;
        DeskDialogs::resizeWithinScreen(&window, QSize(300, 200));
        QCOMPARE(window.size(), QSize(300, 200));
        DeskDialogs::resizeWithinScreen(&window, QSize(9000, 9000));
        const QSize room = window.screen()->availableSize();
        QVERIFY(window.width() < room.width() && window.width() > room.width() / 2);
        QVERIFY(window.height() < room.height() && window.height() > room.height() / 2);
    }
};

VD_TEST_MAIN(TestDeskDialogs)
#include "tst_deskdialogs.moc"
