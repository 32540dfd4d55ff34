#pragma once

#include "camera.h"

#include <wallreading.h>

#include <map>
#include <string>

namespace Photos {

/// How right a reader was with one kind of fault.
struct Score
{
    int present = 0; ///< that were to be seen
    int found = 0;
    int accused = 0;
    int right = 0;
};

/// What one picture came to.
struct Result
{
    std::string chartKind;
    double angle = 0;
    double scale = 1;
    bool isLocated = false;
    double cornerError = 0; ///< chart pixels, of the corner that is furthest off
    double seconds = 0;
    std::map<std::string, Score> kinds;
    int falseAccusations = 0;
};

/// Holds a reading against the truth, and prints each mistake.
Result judged(const Wall& wall, const Photo& photo, double angle, const WallReading::Reading& reading,
              unsigned seed);

/// Sums results up.
class Tally
{
public:
    void add(const Result& result);

    /// As Markdown.
    std::string table() const;

private:
    std::vector<Result> m_results;
};

} // namespace Photos
