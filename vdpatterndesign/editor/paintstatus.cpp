#include "editor/paintstatus.h"

#include <algorithm>

namespace vardeno::testcharttools {

PaintStatus::PaintStatus(const std::vector<Layer>& layers)
    : m_layers(layers)
{
    clear();
}

void PaintStatus::clear()
{
    for (const Layer& layer : m_layers)
        m_painted[layer.number] = false;
}

const char* PaintStatus::note(const QString& memberName)
{
    for (const Layer& layer : m_layers) {
        if (memberName != QLatin1String(layer.memberName))
            continue;
        m_painted[layer.number] = true;
        return layer.doneText;
    }
    return nullptr;
}

bool PaintStatus::isDone() const
{
    return std::all_of(m_layers.begin(), m_layers.end(),
                       [this](const Layer& layer) { return !layer.awaited || m_painted.at(layer.number); });
}

} // namespace vardeno::testcharttools
