#include "platform/forms/PackedImage.h"

#include <cstring>

namespace {

constexpr auto format = QImage::Format_ARGB32_Premultiplied; // four bytes a pixel: rows follow each other
constexpr int quickly = 1;

} // namespace

PackedImage::PackedImage(const QImage& image)
    : packed(qCompress(image.constBits(), image.sizeInBytes(), quickly)),
      size(image.size()),
      scale(image.devicePixelRatio())
{
    Q_ASSERT(image.format() == format);
}

QImage PackedImage::unpacked() const
{
    QImage image(size, format);
    const QByteArray bytes = qUncompress(packed);
    std::memcpy(image.bits(), bytes.constData(), static_cast<std::size_t>(image.sizeInBytes()));
    image.setDevicePixelRatio(scale);
    return image;
}
