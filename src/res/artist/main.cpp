// The artist: paints every picture of the skin at build time.
//
//     artist --pack FOLDER              the file that the program embeds, and the source of its index
//     artist --out FOLDER [--scale N]   loose PNG files, to look at
//     artist --icons FOLDER             the program's icon for the desktop
#include <QCommandLineParser>
#include <QGuiApplication>
#include <cstdio>

#include "artist/pack.h"
#include "artist/subjects.h"
#include "artist/type.h"

namespace {

using namespace tarnix::art;

std::vector<Picture> paintAll(int scale) {
    Sheet sheet(scale);
    paintPages(sheet);
    paintCaps(sheet);
    paintMainControls(sheet);
    paintFields(sheet);
    paintDialogFaces(sheet);
    paintManagerFaces(sheet);
    paintDialogButtons(sheet);
    paintIcon(sheet);
    return sheet.pictures();
}

std::vector<Picture> paintBothScales() {
    std::vector<Picture> pictures = paintAll(1);
    const std::vector<Picture> finer = paintAll(2);
    pictures.insert(pictures.end(), finer.begin(), finer.end());
    return pictures;
}

int fail(const QString& why) {
    std::fprintf(stderr, "artist: %s\n", qPrintable(why));
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption(
        {QStringLiteral("pack"), QStringLiteral("Write the pack and its index."), QStringLiteral("folder")});
    parser.addOption({QStringLiteral("out"), QStringLiteral("Write loose files."), QStringLiteral("folder")});
    parser.addOption(
        {QStringLiteral("icons"), QStringLiteral("Write the program's icon."), QStringLiteral("folder")});
    parser.addOption({QStringLiteral("scale"), QStringLiteral("Pixels for one at 100 %: 1 or 2."),
                      QStringLiteral("n"), QStringLiteral("1")});
    parser.addHelpOption();
    parser.process(application);

    if (!typeAvailable()) return fail(typeRequirement());
    const int scale = parser.value(QStringLiteral("scale")).toInt();
    if (scale != 1 && scale != 2) return fail(QStringLiteral("the scale is 1 or 2"));
    const QString pack = parser.value(QStringLiteral("pack"));
    const QString out = parser.value(QStringLiteral("out"));
    const QString icons = parser.value(QStringLiteral("icons"));
    if (pack.isEmpty() && out.isEmpty() && icons.isEmpty())
        return fail(QStringLiteral("nothing to do; see --help"));
    if (!pack.isEmpty() && !writePack(paintBothScales(), pack))
        return fail(QStringLiteral("cannot write %1").arg(pack));
    if (!out.isEmpty() && !writeFiles(paintAll(scale), out))
        return fail(QStringLiteral("cannot write %1").arg(out));
    if (!icons.isEmpty() && !writeIcons(icons)) return fail(QStringLiteral("cannot write %1").arg(icons));
    return 0;
}
