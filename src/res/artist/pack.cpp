#include "artist/pack.h"

#include <QBuffer>
#include <QDir>
#include <QSaveFile>
#include <QTextStream>
#include <algorithm>
#include <cstdio>

#include "artist/emblem.h"
#include "artist/keyboard.h"
#include "ui/main_window_layout.h"

namespace tarnix::art {

namespace {

constexpr qsizetype alignment = 64;
constexpr int keyPage = 0;

/// Whether the program's start needs the picture: the icon, and what the first frame shows, which is the
/// window's background, the key page's band, the controls that are always visible and the caps.
bool neededAtStart(const Picture& picture) {
    if (picture.type == ResourceType::Icon) return true;
    if (picture.scale != 1) return false;
    if (picture.type == ResourceType::Bitmap)
        return picture.id == mainBackground || picture.id == pageBandImage(keyPage);
    if (picture.type != ResourceType::Png) return false;
    const auto shows = [&picture](const ControlRow& row) { return row.image == picture.id; };
    return std::any_of(commonControls.begin(), commonControls.end(), shows) ||
           std::any_of(keyCaps.begin(), keyCaps.end(),
                       [&](const ControlRow& cap) { return shows(cap) && capIsShown(cap); });
}

QByteArray pixelsOf(const QImage& image) {
    const QImage pixels = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QByteArray bytes;
    const qsizetype row = qsizetype{4} * pixels.width();
    bytes.reserve(row * pixels.height());
    for (int y = 0; y < pixels.height(); ++y)
        bytes.append(reinterpret_cast<const char*>(pixels.constScanLine(y)), row);
    return bytes;
}

QByteArray pngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

bool isOpaque(const QImage& image) {
    if (!image.hasAlphaChannel()) return true;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 255) return false;
    return true;
}

const char* nameOf(ResourceType type) {
    switch (type) {
        case ResourceType::Png:
            return "Png";
        case ResourceType::Bitmap:
            return "Bitmap";
        case ResourceType::Icon:
            return "Icon";
    }
    return "";
}

/// What can be read at 100 %, line by line: type and number of the picture, left, top, right, bottom and
/// words.
QByteArray wordsOf(const std::vector<Picture>& pictures) {
    QString table;
    QTextStream out(&table);
    for (const Picture& picture : pictures) {
        if (picture.scale != 1) continue;
        for (const PlacedLine& line : picture.lines) {
            const QRect area = line.area.toAlignedRect();
            out << static_cast<int>(picture.type) << ' ' << picture.id << ' ' << area.left() << ' '
                << area.top() << ' ' << area.left() + area.width() << ' ' << area.top() + area.height() << ' '
                << line.text << '\n';
        }
    }
    out.flush();
    return table.toUtf8();
}

/// More would be felt: in the program's size, and in what a start reads from the disk.
constexpr qsizetype mostCompressed = qsizetype{4} << 20;
constexpr qsizetype mostInPlace = qsizetype{6} << 20;

bool writeFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

QByteArray indexSource(const QString& rows, const QString& packPath, qsizetype packSize) {
    QString source;
    QTextStream(&source)
        << "// Made by the artist together with the pack.\n"
           "#include \"platform/builtin_resources.h\"\n\n"
           "asm(\".pushsection .rodata.tarnix_art,\\\"a\\\",%progbits\\n\"\n"
           "    \".balign "
        << alignment
        << "\\n\"\n"
           "    \".hidden tarnixArtPack\\n\"\n"
           "    \".global tarnixArtPack\\n\"\n"
           "    \"tarnixArtPack:\\n\"\n"
           "    \".incbin \\\""
        << packPath
        << "\\\"\\n\"\n"
           "    \".popsection\\n\");\n\n"
           "extern \"C\" __attribute__((visibility(\"hidden\"))) const unsigned char tarnixArtPack["
        << packSize
        << "];\n\n"
           "namespace tarnix {\n\n"
           "namespace {\n\n"
           "constexpr BuiltinImage rows[] = {\n"
        << rows
        << "};\n\n"
           "} // namespace\n\n"
           "std::span<const BuiltinImage> builtinImages() {\n"
           "    return rows;\n"
           "}\n\n"
           "} // namespace tarnix\n";
    return source.toUtf8();
}

} // namespace

bool writePack(const std::vector<Picture>& pictures, const QString& folder) {
    QByteArray pack;
    QString rows;
    QTextStream out(&rows);
    qsizetype compressed = 0;
    qsizetype used = 0;
    for (const Picture& picture : pictures) {
        const bool inPlace = neededAtStart(picture);
        const QByteArray stored = inPlace ? pixelsOf(picture.pixels) : pngOf(picture.pixels);
        if (stored.isEmpty()) return false;
        (inPlace ? used : compressed) += stored.size();
        out << "    {ResourceType::" << nameOf(picture.type) << ", " << picture.id << ", "
            << picture.pixels.width() << ", " << picture.pixels.height() << ", " << picture.scale << ", "
            << (isOpaque(picture.pixels) ? "true" : "false")
            << ", BuiltinImage::Format::" << (inPlace ? "PremultipliedArgb32" : "Png") << ", tarnixArtPack + "
            << pack.size() << ", " << stored.size() << "},\n";
        pack.append(stored);
        pack.append((alignment - pack.size() % alignment) % alignment, '\0');
    }
    out.flush();
    std::printf("%zu pictures: %lld bytes compressed, %lld bytes used in place\n", pictures.size(),
                static_cast<long long>(compressed), static_cast<long long>(used));
    if (compressed > mostCompressed || used > mostInPlace) {
        std::fprintf(stderr, "artist: the pictures have grown too large\n");
        return false;
    }
    const QDir target(folder);
    const QString packPath = QDir::cleanPath(target.absoluteFilePath(QStringLiteral("art.pack")));
    return QDir().mkpath(folder) && writeFile(packPath, pack) &&
           writeFile(target.filePath(QStringLiteral("words.txt")), wordsOf(pictures)) &&
           writeFile(target.filePath(QStringLiteral("builtin_images.cpp")),
                     indexSource(rows, packPath, pack.size()));
}

bool writeFiles(const std::vector<Picture>& pictures, const QString& folder) {
    if (!QDir().mkpath(folder)) return false;
    return std::all_of(pictures.begin(), pictures.end(), [&folder](const Picture& picture) {
        const QString scale = picture.scale == 1 ? QString() : QStringLiteral("@%1x").arg(picture.scale);
        const QString name = QStringLiteral("%1_%2%3.png")
                                 .arg(QString::fromLatin1(nameOf(picture.type)).toLower())
                                 .arg(picture.id)
                                 .arg(scale);
        return picture.pixels.save(QDir(folder).filePath(name), "PNG");
    });
}

bool writeIcons(const QString& folder) {
    if (!QDir().mkpath(folder)) return false;
    const QDir target(folder);
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        {
            ScaledPainter painter(image, 1);
            paintEmblem(painter, QRectF(0, 0, size, size));
        }
        if (!image.save(target.filePath(QStringLiteral("%1.png").arg(size)), "PNG")) return false;
    }
    return writeFile(target.filePath(QStringLiteral("scalable.svg")), emblemAsSvg().toUtf8());
}

} // namespace tarnix::art
