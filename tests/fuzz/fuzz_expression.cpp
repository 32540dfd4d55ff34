#include "expression.h"
#include "require.h"

#include <cmath>
#include <cstdint>

using namespace vardeno::testcharttools;

/// What is calculated is a number, and what an entry shows of it is calculated again to the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
    const auto value = calculated(text);
    for (int i = 0; i <= text.size() && i < 64; ++i)
        editFits(text.left(i), text, i);
    if (!value)
        return 0;
    require(std::isfinite(*value), "a value is finite");
    require(!(*value == 0 && std::signbit(*value)), "a value is never -0");
    require(calculated(shownNumber(*value)).has_value(), "what is shown has a value");
    const QString after = textAfterTyping(text, *value);
    require(calculated(after).has_value(), "what is shown after typing has a value");
    textWhileTyping(text, *value);
    return 0;
}
