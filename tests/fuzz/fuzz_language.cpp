#include "require.h"
#include "translator.h"

#include <QLoggingCategory>

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

using namespace vardeno::trans;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    QLoggingCategory::setFilterRules(QStringLiteral("*=false"));
    return 0;
}

/// A file that is refused changes nothing; one that is read translates what it says, and nothing into
/// nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const int file = memfd_create("language", 0);
    require(write(file, data, size) == ssize_t(size), "there is memory for the file");
    Translator translator;
    translator.load(QStringLiteral("/proc/self/fd/%1").arg(file));
    close(file);
    for (const char* language : {"de", "en", "zh_CN"}) {
        translator.switchLanguage(QLatin1String(language));
        for (const char* source : {"Confirm", "a", ""}) {
            const QString text = translator.text(QStringLiteral("TestChartTools"), QStringLiteral("Widget"),
                                                 QLatin1String(source));
            require(!text.isEmpty() || *source == 0, "a text has a translation or is its own");
        }
    }
    return 0;
}
