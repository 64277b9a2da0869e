#include "TovuPlainLabel.h"

#include <QHash>
#include <QMovie>
#include <QPicture>

namespace {

// Everything QLabel sizes a plain text by. A font's equality leaves out the resolution
// it is measured at, which matters only for sizes in points.
struct Key {
    QFont font;
    int dpi = 0;
    QString text;
    int alignment = 0;
    bool wordWrap = false;
    int indent = 0;
    int margin = 0;
    int frameWidth = 0;
    QMargins contentsMargins;
    QSize minimumSize;
    QSize maximumSize;
    int measure = 0;
    int width = 0;

    bool operator==(const Key &other) const = default;
};

size_t qHash(const Key &key, size_t seed = 0)
{
    return qHashMulti(seed, key.text, key.font, key.dpi, key.alignment, key.wordWrap, key.measure, key.width,
                      key.maximumSize.width(), key.minimumSize.width());
}

// Enough for the texts of a few pages; emptied rather than trimmed when full.
constexpr qsizetype capacity = 1024;

} // namespace

TovuPlainLabel::TovuPlainLabel(QWidget *parent)
    : QLabel(parent)
{ }

TovuPlainLabel::~TovuPlainLabel() = default;

bool TovuPlainLabel::isShared() const
{
    const Qt::TextInteractionFlags selectable = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;
    return textFormat() == Qt::PlainText && !(textInteractionFlags() & selectable) && !buddy() && pixmap().isNull()
        && picture().isNull() && !movie();
}

QSize TovuPlainLabel::shared(Measure measure, int width) const
{
    static QHash<Key, QSize> known;
    ensurePolished(); // polishing may change the font or the margins
    const QFont &own = font();
    Key key{own,
            own.pixelSize() > 0 ? 0 : logicalDpiY(),
            text(),
            static_cast<int>(alignment()),
            wordWrap(),
            indent(),
            margin(),
            frameWidth(),
            contentsMargins(),
            minimumSize(),
            maximumSize(),
            static_cast<int>(measure),
            width};
    const auto found = known.constFind(key);
    if (found != known.constEnd())
        return found.value();
    QSize size;
    switch (measure) {
    case Measure::sizeHint:
        size = QLabel::sizeHint();
        break;
    case Measure::minimumSizeHint:
        size = QLabel::minimumSizeHint();
        break;
    case Measure::heightForWidth:
        size = QSize(width, QLabel::heightForWidth(width));
        break;
    }
    if (known.size() >= capacity)
        known.clear();
    known.insert(std::move(key), size);
    return size;
}

QSize TovuPlainLabel::sizeHint() const
{
    return isShared() ? shared(Measure::sizeHint, 0) : QLabel::sizeHint();
}

QSize TovuPlainLabel::minimumSizeHint() const
{
    return isShared() ? shared(Measure::minimumSizeHint, 0) : QLabel::minimumSizeHint();
}

int TovuPlainLabel::heightForWidth(int width) const
{
    return isShared() ? shared(Measure::heightForWidth, width).height() : QLabel::heightForWidth(width);
}
