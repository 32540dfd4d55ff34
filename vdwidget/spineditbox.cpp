#include "spineditbox.h"

#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <utility>

namespace vardeno::testcharttools {

SpinEditBox::SpinEditBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
    setKeyboardTracking(false);
    setCorrectionMode(QAbstractSpinBox::CorrectToPreviousValue);
    setAccelerated(true);
    connect(this, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &SpinEditBox::valueChanged);
    // Not `textEdited`: a text that a program puts into the entry is an edit as well. The box itself changes
    // its text without a signal.
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
        if (m_textBeforeEdit.isNull())
            m_textBeforeEdit = textFromValue(value());
    });
    connect(this, &QAbstractSpinBox::editingFinished, this, &SpinEditBox::finishEdit);
}

QValidator::State SpinEditBox::validate(QString& input, int& position) const
{
    // Typed over everything, a value with its suffix meets the suffix that the box adds.
    if (!suffix().isEmpty() && input.endsWith(suffix() + suffix())) {
        input.chop(suffix().size());
        position = std::min(position, int(input.size()));
    }
    const QValidator::State state = QDoubleSpinBox::validate(input, position);
    // The base refuses the key that would leave the range ("500" in 1..100 becomes "50", and 50 is
    // committed).
    return state == QValidator::Invalid ? QValidator::Intermediate : state;
}

/// The base would not read what is typed into a box that it has cleared.
void SpinEditBox::clear()
{
    lineEdit()->setText(prefix() + suffix());
    lineEdit()->setCursorPosition(prefix().size());
}

void SpinEditBox::fixup(QString& input) const
{
    m_refused = true;
    input = prefix() + textFromValue(value()) + suffix();
}

QString SpinEditBox::textFromValue(double value) const
{
    QString text = QDoubleSpinBox::textFromValue(m_wholeNumbers ? std::trunc(value) : value);
    const QString point = locale().decimalPoint();
    if (!text.contains(point))
        return text;
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(point))
        text.chop(point.size());
    return text;
}

void SpinEditBox::stepBy(int steps)
{
    QDoubleSpinBox::stepBy(steps);
    tellOfRefusal();
}

void SpinEditBox::focusOutEvent(QFocusEvent* event)
{
    if (isEnabled())
        QDoubleSpinBox::focusOutEvent(event);
    else                               // an edit that the lock interrupts is not finished
        QWidget::focusOutEvent(event); // NOLINT(bugprone-parent-virtual-call)
}

void SpinEditBox::finishEdit()
{
    if (m_textBeforeEdit.isNull())
        return;
    const QString before = m_textBeforeEdit;
    m_textBeforeEdit = QString();
    Q_EMIT editFinished(before);
    tellOfRefusal();
}

void SpinEditBox::tellOfRefusal()
{
    if (std::exchange(m_refused, false))
        Q_EMIT entryRefused();
}

} // namespace vardeno::testcharttools
