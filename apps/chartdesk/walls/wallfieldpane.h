#pragma once

#include "walledit.h"

#include <QWidget>

#include <functional>
#include <vector>

class QAbstractButton;
class QFormLayout;
class QGroupBox;
class WallCanvas;
class WallModel;

/// The fields of a wall and of what is selected in its canvas.
class WallFieldPane : public QWidget
{
    Q_OBJECT

public:
    WallFieldPane(WallModel* model, WallCanvas* canvas, QWidget* parent = nullptr);

    void retranslate();
    /// The wall, or the selection, has changed.
    void load();

private:
    using Wall = vardeno::walls::WallDocument;
    /// A control with its text in English and what brings it up to date.
    struct Row
    {
        QWidget* control;
        const char* source;
        std::function<void()> load;
        std::vector<const char*> choices; ///< texts of a combo box, in English
    };
    using Change = std::function<Wall(const Wall& wall, int value)>;
    using Value = std::function<int(const Wall& wall)>;

    void createSelection();
    void createCables();
    void createLayers();
    void beginGroup(const char* source);
    void alignLabels();
    void add(QWidget* control, const char* source, std::function<void()> load,
             std::vector<const char*> choices = {});
    void addNumber(const char* name, const char* source, int least, int most, const Value& value,
                   const Change& change);
    void addChoice(const char* name, const char* source, const std::vector<const char*>& choices,
                   const Value& value, const Change& change);
    void addSwitch(const char* name, const char* source, const Value& value, const Change& change);
    void addText(const char* name, const char* source, std::function<std::string(const Wall&)> value,
                 std::function<Wall(const Wall&, const std::string&)> change);
    void addPath(const char* name, vardeno::walls::CablePath& (*path)(Wall&));
    vardeno::walls::Place first() const;
    bool hasSelection() const;

    WallModel* m_model;
    WallCanvas* m_canvas;
    QFormLayout* m_form = nullptr; ///< of the group that is filled
    std::vector<Row> m_rows;
    std::vector<std::pair<QGroupBox*, const char*>> m_groups;
    std::vector<QWidget*> m_ofSelection; ///< that need one
};
