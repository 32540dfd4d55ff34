#pragma once

#include "testcharttoolsdata.h"

#include <QMap>
#include <QObject>
#include <QString>

#include <functional>

class QImage;
class QTimer;

namespace vardeno::testcharttools {

class EditButtons;
class VTestChartTools;

/// Writes the tool's chart, tells the host of it, and removes the folder of a chart that was replaced.
class ChartSaver : public QObject
{
public:
    /// `record` is the tool's own, which `sigSave` carries.
    ChartSaver(VTestChartTools* tool, EditButtons* buttons, TestChartToolsData& record);
    /// Removals that are still to come are left to the application, which makes up for them when it ends.
    ~ChartSaver() override;

    /// What the host has set.
    QString root = QStringLiteral(" ");
    QString previewName = QStringLiteral(" ");
    QString currentEditName = QStringLiteral(" ");
    QString lastSavePath = QStringLiteral(" ");
    int testImageNumber = 0;
    bool smallPng = false;

    /// Starts to write the image that `compose` gives into a new folder, and returns its full path. Without a
    /// name it gets that of a new chart.
    QString save(EditType type, const QString& name, const std::function<QImage()>& compose);
    /// Starts to write `image` beside the folder of the preview.
    void savePreview(const std::function<QImage()>& compose);

    QString failedPath() const { return m_failedPath; }
    QString failedReason() const { return m_failedReason; }

private:
    struct Removal
    {
        QString path;
        QString replacement;
        QString root;
    };

    void write(const QImage& image, const QString& path, const std::function<void()>& written);
    void chartWritten(EditType type, const QString& path);
    void previewWritten();
    void scheduleFileDeletion(const QString& path, const QString& replacement);
    void removeReplaced(QTimer* timer);

    VTestChartTools* m_tool;
    EditButtons* m_buttons;
    TestChartToolsData& m_record;
    QString m_failedPath;
    QString m_failedReason;
    QMap<QTimer*, Removal> m_removals; ///< that are to come
};

} // namespace vardeno::testcharttools
