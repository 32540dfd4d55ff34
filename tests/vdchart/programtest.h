#pragma once

#include "testcase.h"

#include <chartrecordfile.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

/// Base of tests of the command line as its user runs it: in a process of its own, in a folder of the test
/// case's own.
class ProgramTest : public TestCase
{
protected:
    struct Outcome
    {
        int code;
        QByteArray output;
        QString errors;
    };

    QString path(const QString& name) const { return m_folder.filePath(name); }

    Outcome run(const QStringList& arguments, const QByteArray& input = QByteArray()) const
    {
        QProcess process;
        process.setWorkingDirectory(m_folder.path());
        process.start(programPath("vdchart"), arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, QByteArray(), process.errorString()};
        return {process.exitCode(), process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    }

    /// In a shell, `$vdchart` being the program.
    Outcome runInShell(const QString& script) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("vdchart"), programPath("vdchart"));
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(QStringLiteral("bash"), {QStringLiteral("-c"), script});
        process.waitForFinished(120000);
        return {process.exitCode(), process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QStringList files(const QString& folder = QString()) const
    {
        return QDir(path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    static vardeno::testcharttools::TestChartToolsData smallRecord()
    {
        vardeno::testcharttools::TestChartToolsData record;
        record.publicData.resolutionWidth = 320;
        record.publicData.resolutionHeight = 180;
        return record;
    }

private:
    QTemporaryDir m_folder;
};
