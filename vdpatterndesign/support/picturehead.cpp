#include "support/picturehead.h"

#include <QByteArray>
#include <QIODevice>
#include <QImageReader>
#include <QtEndian>

#include <cstdlib>

namespace vardeno::testcharttools {

namespace {

/// Of the GIF file with that beginning.
QSize screenSize(const QByteArray& head)
{
    constexpr int place = 6; // behind the signature
    return {qFromLittleEndian<quint16>(head.constData() + place),
            qFromLittleEndian<quint16>(head.constData() + place + 2)};
}

} // namespace

QSize toldSize(QImageReader& reader)
{
    constexpr int headSize = 10;
    const bool isGif = reader.format() == "gif"; // opens the file
    const QByteArray head = isGif ? reader.device()->peek(headSize) : QByteArray();
    const QSize told = reader.size();
    const QSize size = told == QSize() ? told : QSize(told.width(), std::abs(told.height()));
    return head.size() == headSize ? size.expandedTo(screenSize(head)) : size;
}

} // namespace vardeno::testcharttools
