#pragma once

#include <QString>

class QImage;

/// Saves screenshots as PNG files, optionally with a palette of the picture's
/// 256 most frequent colours: screenshots of flat pages have few colours
/// besides antialiasing, so they look the same at about a third of the size,
/// small enough to keep in the repository.
class TovuDemoPng
{
public:
    static bool save(const QImage &image, const QString &path, bool palette);

    TovuDemoPng() = delete;
};
