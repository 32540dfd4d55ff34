#pragma once

#include "thumbnailloader.h"

#include <QDialog>

/// Shows a chart that cannot be edited here, and why.
class ChartViewer : public QDialog
{
    Q_OBJECT

public:
    ChartViewer(const QString& imagePath, const QString& reason, QWidget* parent);

private:
    ThumbnailLoader m_loader;
};
