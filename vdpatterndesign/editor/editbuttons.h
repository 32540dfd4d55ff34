#pragma once

#include "controls/caption.h"

#include <QWidget>

#include <array>

class QPushButton;

namespace vardeno::testcharttools {

/// The bar with the buttons that end an edit, and with the save button that a host may show.
///
/// At first the buttons are enabled and disabled by single events: a press disables some, the end of a
/// repaint enables all, whatever there is to save. Where `followsState`, they always tell what may be done:
/// the confirm buttons and Apply need an idle tool, and all of them but the replacement's Confirm something
/// unsaved.
class EditButtons : public QWidget
{
public:
    explicit EditButtons(QWidget* parent);

    QPushButton* save() const { return m_save; }
    QPushButton* cancel() const { return m_cancel; }
    QPushButton* addConfirm() const { return m_addConfirm; }
    QPushButton* replaceConfirm() const { return m_replaceConfirm; }
    QPushButton* replaceApply() const { return m_replaceApply; }

    void setShowForAdd(bool add);
    void retranslate();
    /// Whether the bar takes the width that it is given, and its captions are seen whole in the font of the
    /// tool. At first it has its one size, and they have a font of one size.
    void setFollowsRoom(bool follows);
    /// Gives every caption its room, where it does.
    void fit();
    /// A sibling that stands over the left of the bar.
    void setSideBar(QWidget* bar);

    bool followsState() const { return m_followsState; }
    void setFollowsState(bool follows);

    /// Whether there is anything to save.
    void setUnsaved(bool unsaved);
    /// The panels are locked while the chart is repainted.
    void setLocked(bool locked);
    /// An image is being written, and has been.
    void beginWriting();
    void endWriting(bool written);

protected:
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPushButton* create(const char* objectName, const char* text, const QSize& size);
    void showState();

    std::array<QPushButton*, 4> ofEdit() const;
    void placeSideBar();

    QPushButton* m_save;
    QPushButton* m_cancel;
    QPushButton* m_addConfirm;
    QPushButton* m_replaceConfirm;
    QPushButton* m_replaceApply;
    CaptionSet m_captions;
    QWidget* m_sideBar = nullptr;
    bool m_followsRoom = false;
    bool m_followsState = false;
    bool m_unsaved = true;
    bool m_changedSinceWriting = false; ///< so that what is written then is not all
    bool m_locked = false;
    int m_writing = 0;
};

} // namespace vardeno::testcharttools
