#include "TovuDemoPng.h"

#include <QHash>
#include <QImage>

#include <algorithm>
#include <utility>
#include <vector>

bool TovuDemoPng::save(const QImage &image, const QString &path, bool palette)
{
    // Quality 0: the smallest file (for PNG, Qt's quality is the compression effort).
    if (!palette)
        return image.save(path, "PNG", 0);
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    QHash<QRgb, int> counts;
    for (int y = 0; y < rgb.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(rgb.constScanLine(y));
        for (int x = 0; x < rgb.width(); ++x)
            ++counts[line[x]];
    }
    std::vector<std::pair<int, QRgb>> frequent;
    frequent.reserve(static_cast<std::size_t>(counts.size()));
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        frequent.emplace_back(it.value(), it.key());
    const auto kept = std::min<std::size_t>(256, frequent.size());
    std::partial_sort(frequent.begin(), frequent.begin() + static_cast<std::ptrdiff_t>(kept), frequent.end(),
                      [](const auto &a, const auto &b) { return a.first > b.first; });
    QList<QRgb> table;
    for (std::size_t i = 0; i < kept; ++i)
        table.append(frequent[i].second);
    // Every other colour becomes its nearest in the table; no dithering, which would add noise to flat areas.
    QImage indexed = rgb.convertToFormat(QImage::Format_Indexed8, table, Qt::ThresholdDither);
    indexed.setDevicePixelRatio(image.devicePixelRatio());
    return indexed.save(path, "PNG", 0);
}
