#include "support/nearestname.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace vardeno::testcharttools {

namespace {

/// The number of letters to be put in, taken out or replaced.
int distance(const QString& a, const QString& b)
{
    std::vector<int> row(std::size_t(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (const QChar letter : a) {
        int diagonal = row[0]++;
        for (std::size_t j = 0; j + 1 < row.size(); ++j) {
            const int replaced = diagonal + (letter == b[int(j)] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

QString nearestName(const QString& name, const QStringList& names)
{
    const bool isWhole = name.contains(QLatin1Char('.'));
    QString nearest;
    int least = 2 + std::min(3, int(name.size()) / 3);
    for (const QString& candidate : names) {
        const QString compared = isWhole ? candidate : candidate.section(QLatin1Char('.'), -1);
        if (std::abs(compared.size() - name.size()) >= least)
            continue;
        const int letters = distance(name.toLower(), compared.toLower());
        if (letters < least) {
            least = letters;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace vardeno::testcharttools
