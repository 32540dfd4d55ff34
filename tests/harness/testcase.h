#pragma once

#include "logrecorder.h"

#include <QApplication>
#include <QColor>
#include <QImage>
#include <QLabel>
#include <QObject>
#include <QPixmap>
#include <QtTest>

#include <memory>

/// Base of all test cases: a warning that a test function has not declared with `log().allowWarning` fails
/// it. A test case that has an `init` or `cleanup` of its own calls this one's first or last.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    static LogRecorder& log() { return LogRecorder::instance(); }

protected Q_SLOTS:
    void init();
    void cleanup();
};

/// The picture that a layer painter shows.
inline QImage layerImage(const QLabel& layer)
{
    return layer.pixmap(Qt::ReturnByValue).toImage();
}

/// Fails with the first differing pixel and the number of them.
#define VD_COMPARE_IMAGES(actual, expected)                                                                  \
    do {                                                                                                     \
        const QString difference_ = imageDifference(actual, expected);                                       \
        QVERIFY2(difference_.isEmpty(), qPrintable(difference_));                                            \
    } while (false)

/// Empty for equal pictures, otherwise what differs.
QString imageDifference(const QImage& actual, const QImage& expected);

/// Locale, hash seed, style, font and standard paths that do not depend on who runs the tests.
void prepareTestProcess();
void prepareTestApplication();

/// A file or folder of the sources, and a program that is built beside the tests.
QString sourcePath(const char* path);
QString programPath(const char* name);

/// How often a test of random input goes round: `all` times with sanitizers, which are what finds the most in
/// it, and wherever VD_ALL_ROUNDS is set in the environment; otherwise a tenth.
int rounds(int all);

/// Makes `Class` known to the main function of its test program, which runs the test case that its first
/// argument names ("tst_ink", after the file), or all of them.
#define VD_TEST_MAIN(Class)                                                                                  \
    static const bool registered_##Class =                                                                   \
        registerTestCase(__FILE__, []() -> std::unique_ptr<QObject> { return std::make_unique<Class>(); });

/// `file` names the test case: its base name is taken.
bool registerTestCase(const char* file, std::unique_ptr<QObject> (*create)());
