#pragma once

#include "vdchartcore_export.h"

#include <QString>

class QFileDevice;

namespace vardeno::testcharttools {

/// Why a file could not be written, as a value that may cross threads.
struct WriteFault
{
    enum Kind
    {
        None,
        NoFolder,     ///< the folder is not there
        NoPermission, ///< its owner, its rights or a read-only disk forbid it
        NoSpace,      ///< the disk or the quota is full
        InTheWay,     ///< a file stands where a folder is needed, or a folder where the file is
        NotEncodable, ///< the format cannot hold this picture
        Other         ///< `systemText` tells what the system says
    };

    Kind kind = None;
    QString systemText;
};

/// What kept `path` from being written. `errorNumber`: what the system call that failed left behind, 0 where
/// it is not known; `file`: the file as it then was.
VDCHARTCORE_EXPORT WriteFault writeFaultOf(const QString& path, const QFileDevice& file, int errorNumber);

/// The fault as a sentence in the current language, empty for none. GUI thread only.
VDCHARTCORE_EXPORT QString writeFaultText(const WriteFault& fault);

} // namespace vardeno::testcharttools
