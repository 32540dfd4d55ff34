#pragma once

class QSlider;

namespace vardeno::testcharttools {

class SpinEditBox;

/// A slider and a numeric entry that show one percentage. While the slider is dragged the entry follows and
/// nothing is applied; any other change is applied at once.
struct SliderEntry
{
    QSlider* slider = nullptr;
    SpinEditBox* entry = nullptr;

    /// For the slider's `valueChanged`.
    void entryFollows() const;
    /// For the entry's `valueChanged`: returns whether the value is to be applied now.
    bool sliderFollows() const;
    /// Sets both, the slider first.
    void set(int percent) const;
    /// Sets both without a signal from either.
    void setQuietly(int percent) const;
};

} // namespace vardeno::testcharttools
