#pragma once

#include "vdwidget_export.h"

#include <QWidget>

class QLayout;
class QToolButton;
class QVBoxLayout;

namespace vardeno::testcharttools {

/// A section of a settings column: a title that folds the section, and below it named items of fixed height.
///
/// The title is operated with the mouse, or with the keyboard when it has the focus: Space and Enter fold or
/// unfold, Left folds, Right unfolds. The state lives as long as the box, whether shown or not; a new box is
/// unfolded. GUI thread only.
class VDWIDGET_EXPORT PropertyBox : public QWidget
{
    Q_OBJECT

public:
    explicit PropertyBox(QWidget* parent = nullptr);

    /// Gives the section its title bar. A section without one cannot be folded by the user.
    void setTitleItem(const QString& text);
    /// Changes the title bar's text; nothing happens before `setTitleItem`.
    void setTitleText(const QString& text);
    QString titleText() const;

    /// Whether the title bar is as high as its text needs, but not less than usual; to be told again when the
    /// font has changed. At first it has the usual height, 28 pixels.
    void setTitleFits(bool fits);

    /// Appends an item that shows `layout` (taken over) and is `height` pixels high, and returns it. Its
    /// object name is `name`.
    QWidget* addItem(const QString& name, QLayout* layout, int height);

    bool isExpanded() const;
    void setExpanded(bool expanded);

Q_SIGNALS:
    void expandedChanged(bool expanded);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showState();

    QVBoxLayout* m_layout;
    QToolButton* m_title = nullptr;
    QWidget* m_body;
    bool m_expanded = true;
};

} // namespace vardeno::testcharttools
