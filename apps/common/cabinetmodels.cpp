#include "cabinetmodels.h"

#include <algorithm>

namespace {

/// Called after its size and its pitch: "500x500-3.9".
CabinetModel model(const QSize& millimeters, const QSize& pixels)
{
    const int pitch = qRound(1000.0 * millimeters.width() / pixels.width());
    const QString name = QStringLiteral("%1x%2-%3")
                             .arg(millimeters.width())
                             .arg(millimeters.height())
                             .arg(pitch / 1000.0, 0, 'f', 1);
    return {name, pixels, millimeters, pitch};
}

} // namespace

const std::vector<CabinetModel>& cabinetModels()
{
    static const std::vector<CabinetModel> models = {
        model({960, 960}, {96, 96}),    model({1000, 1000}, {125, 125}), model({960, 960}, {160, 160}),
        model({500, 500}, {104, 104}),  model({500, 1000}, {104, 208}),  model({500, 500}, {128, 128}),
        model({500, 1000}, {128, 256}), model({500, 500}, {168, 168}),   model({500, 1000}, {168, 336}),
        model({500, 500}, {192, 192}),  model({500, 1000}, {192, 384}),  model({500, 500}, {256, 256}),
        model({480, 480}, {192, 192}),  model({640, 480}, {256, 192}),   model({600, 337}, {384, 216}),
        model({600, 337}, {480, 270}),  model({600, 337}, {640, 360}),
    };
    return models;
}

const CabinetModel* findCabinetModel(const QString& name)
{
    const auto& models = cabinetModels();
    const auto found = std::find_if(models.begin(), models.end(),
                                    [&name](const CabinetModel& model) { return model.name == name; });
    return found == models.end() ? nullptr : &*found;
}
