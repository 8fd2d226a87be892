#include "platform/forms/PackedImage.h"

#include <cstdlib>
#include <cstring>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace {

constexpr auto format = QImage::Format_ARGB32_Premultiplied; // four bytes a pixel: rows follow each other
constexpr int quickly = 1;

/// Packing leaves more than its result free on the heap: about a quarter of a megabyte of tables.
void giveBackFreeMemory()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace

PackedImage::PackedImage(const QImage& image)
    : packed(qCompress(image.constBits(), image.sizeInBytes(), quickly)),
      size(image.size()),
      scale(image.devicePixelRatio())
{
    Q_ASSERT(image.format() == format);
    giveBackFreeMemory();
}

QImage PackedImage::unpacked() const
{
    QImage image(size, format);
    const QByteArray bytes = qUncompress(packed);
    std::memcpy(image.bits(), bytes.constData(), static_cast<std::size_t>(image.sizeInBytes()));
    image.setDevicePixelRatio(scale);
    return image;
}
