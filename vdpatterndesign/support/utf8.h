#pragma once

#include <QByteArray>
#include <QString>

namespace vardeno::testcharttools {

/// Whether `text` is UTF-8 throughout.
inline bool isUtf8(const QByteArray& text)
{
    // Behind a character a byte order mark is one like any other, and is not left out.
    const QByteArray whole = 'x' + text;
    return QString::fromUtf8(whole.constData(), whole.size()).toUtf8() == whole; // with its zero bytes
}

} // namespace vardeno::testcharttools
