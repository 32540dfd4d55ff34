#pragma once

#include "chartdetails.h"

#include <QImage>
#include <QStringList>

/// The files of walls and shows in a folder of charts. Functions without state, for any thread.
namespace WallDocuments {

/// The walls and shows that lie in `folder` itself, by name.
QStringList in(const QString& folder);

/// By the name of the file.
bool isDocument(const QString& path);
bool isShow(const QString& path);

/// The paths of a show's walls.
QStringList wallsOfShow(const QString& path);

ChartDetails details(const QString& path);

/// A small picture of a wall or of a show's first output, not larger than `size`; null where the file cannot
/// be read. Of a large one a few rows are looked at for each row of the picture.
QImage picture(const QString& path, const QSize& size);

/// All that its picture is made of.
QByteArray contents(const QString& path);

} // namespace WallDocuments
