#pragma once

#include "vdwidget_export.h"

#include <QDoubleSpinBox>

namespace vardeno::testcharttools {

/// A numeric entry with range and suffix.
///
/// A value is announced when it is committed (Enter, focus lost, an arrow key, the wheel, a step,
/// `setValue`), never while it is being typed. Anything may be typed: an entry that is no number or lies
/// outside the range goes back to the last valid value when the edit ends; nothing is cut to the range in
/// silence. Numbers are shown without trailing zeros ("50", "0.5"), in a box of whole numbers without
/// decimals. GUI thread only.
class VDWIDGET_EXPORT SpinEditBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit SpinEditBox(QWidget* parent = nullptr);

    /// Whether numbers are shown without the decimals that were typed or set: for one who cuts them off the
    /// value. At first false. Set before the value.
    void setWholeNumbers(bool whole) { m_wholeNumbers = whole; }
    bool wholeNumbers() const { return m_wholeNumbers; }

    QValidator::State validate(QString& input, int& position) const override;
    /// Leaves prefix and suffix, and the value until another one has been entered.
    void clear() override;
    void fixup(QString& input) const override;
    QString textFromValue(double value) const override;
    void stepBy(int steps) override;

protected:
    /// An entry that loses the focus because it becomes inert keeps what was typed, uncommitted.
    void focusOutEvent(QFocusEvent* event) override;

Q_SIGNALS:
    /// A typed entry, or one put into its text, has ended, after `valueChanged` if it changed the value.
    /// `previousText` is what the box showed before, without prefix and suffix. Values that were set, stepped
    /// or turned to do not come here.
    void editFinished(const QString& previousText);
    /// An edit has ended with no number, or one outside the range, and the last valid value is back.
    void entryRefused();
    /// The committed value. Declared again because Qt 5's base carries a deprecated overload for texts:
    /// here `&SpinEditBox::valueChanged` names one signal.
    void valueChanged(double value);

private:
    void finishEdit();
    void tellOfRefusal();

    QString m_textBeforeEdit; ///< null while nothing has been typed
    bool m_wholeNumbers = false;
    mutable bool m_refused = false; ///< set where the base has an entry repaired
};

} // namespace vardeno::testcharttools
