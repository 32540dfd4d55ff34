#pragma once

#include <QSize>
#include <QString>

#include <vector>

/// A usual cabinet for new walls.
struct CabinetModel
{
    QString name;
    QSize pixels;
    QSize millimeters;
    int pitch; ///< micrometers
};

/// From the largest pitch to the smallest.
const std::vector<CabinetModel>& cabinetModels();

/// The model of that name, null where there is none.
const CabinetModel* findCabinetModel(const QString& name);
