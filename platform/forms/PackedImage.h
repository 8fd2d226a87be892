#pragma once

#include <QByteArray>
#include <QImage>

/// An image, packed. A drawing is mostly flat colour: packed, it takes a twentieth of the memory or less, and
/// unpacking it takes a fraction of the time that drawing it does.
class PackedImage
{
public:
    PackedImage() = default;
    /// @param image  premultiplied, with no bytes between its rows
    explicit PackedImage(const QImage& image);

    /// The image as it was, its scale included.
    QImage unpacked() const;
    qsizetype bytes() const { return packed.size(); }

private:
    QByteArray packed;
    QSize size;
    qreal scale = 1;
};
