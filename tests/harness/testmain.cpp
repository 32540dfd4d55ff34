#include "testcase.h"

#include <QFileInfo>

#include <map>

namespace {

using Factory = std::unique_ptr<QObject> (*)();

std::map<QString, Factory>& testCases()
{
    static std::map<QString, Factory> cases;
    return cases;
}

int run(Factory create, int argc, char** argv)
{
    return QTest::qExec(create().get(), argc, argv);
}

int runAll(int argc, char** argv)
{
    int failures = 0;
    for (const auto& testCase : testCases())
        failures += run(testCase.second, argc, argv);
    return failures;
}

} // namespace

bool registerTestCase(const char* file, std::unique_ptr<QObject> (*create)())
{
    testCases().emplace(QFileInfo(QString::fromLocal8Bit(file)).baseName(), create);
    return true;
}

int main(int argc, char** argv)
{
    const auto named = testCases().find(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    if (named != testCases().end()) {
        argv[1] = argv[0];
        --argc;
        ++argv;
    }
    prepareTestProcess();
    QApplication application(argc, argv);
    prepareTestApplication();
    return named != testCases().end() ? run(named->second, argc, argv) : runAll(argc, argv);
}
