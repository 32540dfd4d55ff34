#include "controls/sliderentry.h"

#include <spineditbox.h>

#include <QSignalBlocker>
#include <QSlider>

namespace vardeno::testcharttools {

void SliderEntry::entryFollows() const
{
    entry->setValue(slider->value());
}

bool SliderEntry::sliderFollows() const
{
    slider->setValue(int(entry->value()));
    return !slider->isSliderDown();
}

void SliderEntry::set(int percent) const
{
    slider->setValue(percent);
    entry->setValue(percent);
}

void SliderEntry::setQuietly(int percent) const
{
    const QSignalBlocker quietSlider(slider);
    const QSignalBlocker quietEntry(entry);
    set(percent);
}

} // namespace vardeno::testcharttools
