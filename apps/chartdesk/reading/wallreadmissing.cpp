#include "wallread.h"

#include "hosttext.h"

/// Where the program was built without OpenCV.
bool canReadWalls()
{
    return false;
}

WallRead readWall(const QString&, const QString&, const ReadLanguage& language, const std::atomic<bool>&)
{
    WallRead read;
    read.problem = language.texts(hostSource("This program was built without OpenCV, which reads photos."));
    return read;
}
