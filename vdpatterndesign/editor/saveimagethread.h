#pragma once

#include "vdpatterndesign_export.h"

#include <QImage>
#include <QThread>

#include <memory>

namespace vardeno::testcharttools {

/// Writes one image to one file and reports how that went.
///
/// The format follows the ending of the path, in lower case: ".png", ".jpg" or ".jpeg", ".bmp". An empty path
/// or any other ending writes nothing and counts as success. The file is written whole or not at all: a write
/// that fails leaves what was there before. The folder must exist.
///
/// Constructed on the GUI thread; `run` touches nothing but the image and the path it was given. A thread
/// that is destroyed while it writes waits until the file is complete.
class VDPATTERNDESIGN_EXPORT SaveImageThread : public QThread
{
    Q_OBJECT

public:
    SaveImageThread(const QImage& image, const QString& path, QObject* parent = nullptr);
    ~SaveImageThread() override;

    /// Whether a PNG file is written small, which all cores take part in, rather than as `QImage` does it
    /// with quality 100, about as large as the pixels in memory. The pixels are the same. Before the thread
    /// is started; off at first.
    void setSmallPng(bool small) { m_smallPng = small; }

    /// What the thread does. Called directly it writes, and reports, in the caller's thread before it
    /// returns.
    void run() override;

    /// Why the last run could not write, empty if it could: a sentence in the current language. For the GUI
    /// thread, once `saveFinished` has come.
    QString failedReason() const;

Q_SIGNALS:
    /// Sent once by every run, from where it runs.
    void saveFinished(bool success);

private:
    bool write(const char* format);

    QImage m_image;
    QString m_path;
    bool m_smallPng = false;
    class Fault;
    std::unique_ptr<Fault> m_fault;
};

} // namespace vardeno::testcharttools
