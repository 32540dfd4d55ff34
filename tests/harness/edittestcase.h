#pragma once

#include "chartfiles.h"
#include "deskwindow.h"
#include "testcase.h"

#include <publicsettingbox.h>
#include <selfsettingbox.h>
#include <translatemanager1.h>

#include <QSettings>
#include <QTemporaryDir>

#include <memory>

/// A desk with a home and a folder of its own, for tests of edits.
class EditTestCase : public TestCase
{
    Q_OBJECT

protected:
    QTemporaryDir m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MainWindow> m_window;

    QString at(const QString& name) const { return m_folder->filePath(name); }

    void openDesk(const QString& folder)
    {
        m_window = std::make_unique<MainWindow>(folder);
        m_window->switchLanguage(QStringLiteral("en"));
        m_window->show();
    }

    void openDesk() { openDesk(m_folder->path()); }

    QStringList charts() const
    {
        QStringList found;
        for (const QFileInfo& chart : ChartFolderList::charts(m_folder->path()))
            found.append(chart.filePath());
        return found;
    }

    static int rowsOf(const QString& image)
    {
        return vardeno::testcharttools::ChartRecordFile::read(ChartFolderList::recordPath(image))
            .record.publicData.boxRow;
    }

    bool isEnded() const { return deskwindow::isListShown(*m_window) && !m_window->session()->isOpen(); }

    bool openNewChart()
    {
        return deskwindow::trigger(*m_window, QStringLiteral("New chart")) && deskwindow::settle(*m_window);
    }

    /// Edits `image`, with other rows, and presses Confirm.
    bool replace(const QString& image, int rows)
    {
        return deskwindow::openChart(*m_window, image) && deskwindow::setRows(*m_window, rows) &&
               deskwindow::click(*m_window, QStringLiteral("Confirm")) &&
               QTest::qWaitFor([this] { return isEnded(); });
    }

    /// Uploads the picture as the user does.
    bool upload(const QString& path)
    {
        deskwindow::chooseInDialog(path);
        return deskwindow::click(*m_window->editor(), QStringLiteral("Choose picture…")) &&
               deskwindow::settle(*m_window);
    }

    QImage shownLogo() const
    {
        const auto record = m_window->editor()->getTestChartToolsData();
        return QImage(QString::fromStdString(record.logoData.picturePath));
    }

    void setResolution(int width, int height)
    {
        auto* panel = m_window->editor()->findChild<vardeno::testcharttools::PublicSettingBox*>();
        for (const auto& [value, shown] : {std::pair(width, 1920), std::pair(height, 1080)}) {
            for (vardeno::testcharttools::SpinEditBox* entry :
                 panel->findChildren<vardeno::testcharttools::SpinEditBox*>()) {
                if (entry->value() != shown)
                    continue;
                entry->setFocus();
                entry->selectAll();
                QTest::keyClicks(entry, QString::number(value));
                QTest::keyClick(entry, Qt::Key_Return);
                QVERIFY(deskwindow::settle(*m_window));
                break;
            }
        }
    }

    static int drafts() { return QDir(draftsRoot()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); }

    /// Whether the draft of an edit with these rows is on the disk.
    static bool isDrafted(int rows)
    {
        const QRegularExpression wanted(QStringLiteral("\"boxRow\"\\s*:\\s*%1\\b").arg(rows));
        QDirIterator files(draftsRoot(), {QStringLiteral("draft.json")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            if (QString::fromUtf8(chartfiles::readFile(files.next())).contains(wanted))
                return true;
        }
        return false;
    }

protected Q_SLOTS:
    void initTestCase()
    {
        qputenv("HOME", m_home.path().toUtf8());
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
            qunsetenv(name);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_home.filePath("settings"));
        QVERIFY(draftsRoot().startsWith(m_home.path()));
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    }

    void init()
    {
        TestCase::init();
        m_folder = std::make_unique<QTemporaryDir>();
    }

    void cleanup()
    {
        m_window.reset();
        QDir(draftsRoot()).removeRecursively();
        TranslateManager1::instance().switchLanguage(QString());
        TestCase::cleanup();
    }
};
