#include "artist/caps.h"

#include <array>
#include <cctype>
#include <cstring>
#include <stdexcept>
#include <string>

namespace tarnix::art {

namespace {

using enum CapTone;

/// Keys that do not simply bear their own name.
constexpr std::array<CapLegend, 66> legends{{
    {"Esc", "Esc", "", CapSign::None, Function},
    {"Print", "Sc", "Prt", CapSign::None, Function},
    {"Scroll Lock", "Lock", "Scr", CapSign::None, Function},
    {"Pause", "Pause", "", CapSign::None, Function},
    {"~", "`", "~"},
    {"1", "1", "!"},
    {"2", "2", "@"},
    {"3", "3", "#"},
    {"4", "4", "$"},
    {"5", "5", "%"},
    {"6", "6", "^"},
    {"7", "7", "&"},
    {"8", "8", "*"},
    {"9", "9", "("},
    {"0", "0", ")"},
    {"-", "-", "_"},
    {"=", "=", "+"},
    {"[", "[", "{"},
    {"]", "]", "}"},
    {"\\", "\\", "|"},
    {";", ";", ":"},
    {"'", "'", "\""},
    {",", ",", "<"},
    {".", ".", ">"},
    {"/", "/", "?"},
    {"Backspace", "Back", "", CapSign::Backspace, Modifier},
    {"Tab", "Tab", "", CapSign::Tab, Modifier},
    {"Caps Lock", "Caps", "", CapSign::None, Modifier},
    {"Enter", "Enter", "", CapSign::Enter, Modifier},
    {"Shift_L", "Shift", "", CapSign::Shift, Modifier},
    {"Shift_R", "Shift", "", CapSign::Shift, Modifier},
    {"Ctrl_L", "Ctrl", "", CapSign::None, Modifier},
    {"Ctrl_R", "Ctrl", "", CapSign::None, Modifier},
    {"Alt_L", "Alt", "", CapSign::None, Modifier},
    {"Alt_R", "Alt", "", CapSign::None, Modifier},
    {"Win_L", "", "", CapSign::Windows, Modifier},
    {"App", "", "", CapSign::Menu, Modifier},
    {"Space", "", ""},
    {"K45", "\\", "|"},
    {"Ins", "Ins", "", CapSign::None, Function},
    {"Del", "Del", "", CapSign::None, Function},
    {"Home", "Home", "", CapSign::None, Function},
    {"End", "End", "", CapSign::None, Function},
    {"Page Up", "Up", "Pg", CapSign::None, Function},
    {"Page Down", "Dn", "Pg", CapSign::None, Function},
    {"Up Arrow", "", "", CapSign::Up, Function},
    {"Down Arrow", "", "", CapSign::Down, Function},
    {"Left Arrow", "", "", CapSign::Left, Function},
    {"Right Arrow", "", "", CapSign::Right, Function},
    {"Num Lock", "Lock", "Num", CapSign::None, Function},
    {"Keypad /", "/", "", CapSign::None, Modifier},
    {"Keypad *", "*", "", CapSign::None, Modifier},
    {"Keypad -", "-", "", CapSign::None, Modifier},
    {"Keypad +", "+", "", CapSign::None, Modifier},
    {"Keypad Enter", "Enter", "", CapSign::Enter, Modifier},
    {"Keypad .", ".", ""},
    {"Keypad 0", "0", ""},
    {"Keypad 1", "1", ""},
    {"Keypad 2", "2", ""},
    {"Keypad 3", "3", ""},
    {"Keypad 4", "4", ""},
    {"Keypad 5", "5", ""},
    {"Keypad 6", "6", ""},
    {"Keypad 7", "7", ""},
    {"Keypad 8", "8", ""},
    {"Keypad 9", "9", ""},
}};

constexpr std::array<CapLegend, 12> functionKeys{{
    {"F1", "F1", "", CapSign::None, Function},
    {"F2", "F2", "", CapSign::None, Function},
    {"F3", "F3", "", CapSign::None, Function},
    {"F4", "F4", "", CapSign::None, Function},
    {"F5", "F5", "", CapSign::None, Function},
    {"F6", "F6", "", CapSign::None, Function},
    {"F7", "F7", "", CapSign::None, Function},
    {"F8", "F8", "", CapSign::None, Function},
    {"F9", "F9", "", CapSign::None, Function},
    {"F10", "F10", "", CapSign::None, Function},
    {"F11", "F11", "", CapSign::None, Function},
    {"F12", "F12", "", CapSign::None, Function},
}};

constexpr std::array<CapLegend, 26> letters{{
    {"A", "A"}, {"B", "B"}, {"C", "C"}, {"D", "D"}, {"E", "E"}, {"F", "F"}, {"G", "G"},
    {"H", "H"}, {"I", "I"}, {"J", "J"}, {"K", "K"}, {"L", "L"}, {"M", "M"}, {"N", "N"},
    {"O", "O"}, {"P", "P"}, {"Q", "Q"}, {"R", "R"}, {"S", "S"}, {"T", "T"}, {"U", "U"},
    {"V", "V"}, {"W", "W"}, {"X", "X"}, {"Y", "Y"}, {"Z", "Z"},
}};

template <std::size_t count>
const CapLegend* findLegend(const std::array<CapLegend, count>& rows, const char* name) {
    for (const CapLegend& row : rows)
        if (std::strcmp(row.name, name) == 0) return &row;
    return nullptr;
}

struct CapColors {
    QColor skirtTop, skirtBottom, faceTop, faceBottom, rim, legend;
};

CapColors colorsOf(CapTone tone, Frame frame) {
    using namespace palette;
    if (frame == Frame::Pressed) return {springDeep, springDeep, spring, springLight, springLight, ink};
    const double lift = frame == Frame::Hover ? 0.45 : 0.0;
    switch (tone) {
        case Letter: {
            const QColor face = mixed(sage, paper, lift);
            return {moss,
                    mossDeep,
                    mixed(face, paper, 0.12),
                    mixed(face, moss, 0.28 * (1 - lift)),
                    mixed(sageLight, paper, lift),
                    ink};
        }
        case Modifier: {
            const QColor face = mixed(mossDeep, moss, lift * 0.9);
            return {mossDark, mixed(mossDark, abyss, 0.35), mixed(face, moss, 0.25),
                    face,     mixed(moss, paper, lift),     paper};
        }
        case Function: {
            const QColor face = mixed(steel, lineBright, lift * 1.3);
            return {steel, slate, mixed(face, line, 0.6), face, mixed(lineBright, paper, lift), paper};
        }
    }
    return {};
}

/// The line around the cap: only a key that the pointer is on, or that is pressed or remapped, has a bright
/// one.
QColor frameEdge(const CapColors& colors, Frame frame) {
    if (frame == Frame::Rest) return mixed(colors.skirtBottom, palette::abyss, 0.4);
    return frame == Frame::Hover ? palette::paper : palette::springLight;
}

QRectF faceOf(const QRectF& area, Frame frame) {
    const double down = frame == Frame::Pressed ? 1 : 0;
    return area.adjusted(2, 1 + down, -2, -4 + down);
}

void paintWindowsSign(QPainter& p, const QPointF& c, const QColor& color) {
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    for (int column = 0; column < 2; ++column)
        for (int row = 0; row < 2; ++row)
            p.drawRect(QRectF(c.x() - 4.5 + column * 5, c.y() - 4.5 + row * 5, 4, 4));
}

void paintMenuSign(QPainter& p, const QPointF& c, const QColor& color) {
    p.setPen(QPen(color, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(c.x() - 4.5, c.y() - 4.5, 9, 9), 1, 1);
    for (double y : {-2.0, 0.0, 2.0})
        p.drawLine(QPointF(c.x() - 2.5, c.y() + y), QPointF(c.x() + 2.5, c.y() + y));
}

void paintShiftSign(QPainter& p, const QPointF& c, const QColor& color) {
    QPainterPath path(QPointF(c.x(), c.y() - 4.5));
    for (const QPointF& d :
         {QPointF(4.5, 0), QPointF(2, 0), QPointF(2, 4), QPointF(-2, 4), QPointF(-2, 0), QPointF(-4.5, 0)})
        path.lineTo(c + d);
    path.closeSubpath();
    p.setPen(QPen(color, 1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(Qt::NoBrush);
    p.drawPath(path);
}

void paintTabSign(QPainter& p, const QPointF& c, const QColor& color) {
    arrow(p, c + QPointF(-0.5, 0), 8, Direction::Right, 1.1, color);
    p.drawLine(c + QPointF(5, -3), c + QPointF(5, 3));
}

void paintEnterSign(QPainter& p, const QPointF& c, const QColor& color) {
    arrow(p, c, 10, Direction::Left, 1.2, color);
    p.drawLine(c + QPointF(5, 0), c + QPointF(5, -5));
}

void paintSign(QPainter& p, const QPointF& centre, CapSign sign, const QColor& color) {
    switch (sign) {
        case CapSign::None:
            return;
        case CapSign::Tab:
            return paintTabSign(p, centre, color);
        case CapSign::Shift:
            return paintShiftSign(p, centre, color);
        case CapSign::Enter:
            return paintEnterSign(p, centre, color);
        case CapSign::Backspace:
            return arrow(p, centre, 10, Direction::Left, 1.2, color);
        case CapSign::Windows:
            return paintWindowsSign(p, centre, color);
        case CapSign::Menu:
            return paintMenuSign(p, centre, color);
        case CapSign::Up:
            return arrow(p, centre, 9, Direction::Up, 1.3, color);
        case CapSign::Down:
            return arrow(p, centre, 9, Direction::Down, 1.3, color);
        case CapSign::Left:
            return arrow(p, centre, 9, Direction::Left, 1.3, color);
        case CapSign::Right:
            return arrow(p, centre, 9, Direction::Right, 1.3, color);
    }
}

/// A sign beside the word on a wide cap, above it on a tall one.
void paintWordAndSign(QPainter& p, const QRectF& face, const CapLegend& legend, const QColor& color) {
    const QString word = QString::fromLatin1(legend.text);
    if (face.height() > face.width()) {
        setFitted(p, face.adjusted(2, 8, -2, 8), word, Type::LegendWord, color);
        paintSign(p, face.center() - QPointF(0, 7), legend.sign, color);
        return;
    }
    constexpr double signWidth = 11;
    constexpr double gap = 3;
    const double width = textWidth(word, Type::LegendWide) + gap + signWidth;
    const double left = face.center().x() - width / 2;
    paintSign(p, QPointF(left + signWidth / 2, face.center().y()), legend.sign, color);
    setText(p, QRectF(left + signWidth + gap, face.top(), width, face.height()), word, Type::LegendWide,
            color, Qt::AlignLeft);
}

/// The function keys' numbers are set alike, whether they have one digit or two.
Type typeOfWord(const CapLegend& legend) {
    const bool numbered = legend.text[0] == 'F' && legend.text[1] >= '1' && legend.text[1] <= '9';
    if (numbered) return Type::LegendNumber;
    if (std::strlen(legend.text) == 1)
        return std::isalnum(static_cast<unsigned char>(legend.text[0])) ? Type::Legend : Type::LegendSign;
    if (std::strlen(legend.text) == 2) return Type::Legend;
    return legend.tone == Modifier ? Type::LegendWide : Type::LegendWord;
}

void paintLegend(QPainter& p, const QRectF& face, const CapLegend& legend, const QColor& color) {
    const QString word = QString::fromLatin1(legend.text);
    const QString upper = QString::fromLatin1(legend.upper);
    const QRectF inner = face.adjusted(1, 0, -1, 0);
    if (legend.sign != CapSign::None && !word.isEmpty()) {
        paintWordAndSign(p, face, legend, color);
    } else if (legend.sign != CapSign::None) {
        paintSign(p, face.center(), legend.sign, color);
    } else if (!upper.isEmpty()) {
        const bool words = word.size() > 1;
        const Type type = words ? Type::LegendWord : Type::LegendTwo;
        setFitted(p, inner.translated(0, words ? -4.5 : -5.5), upper, type, color, word);
        const bool tiny = word == QLatin1String("`");
        setFitted(p, inner.translated(0, words ? 4.5 : 4), word, tiny ? Type::LegendSign : type, color,
                  upper);
    } else if (!word.isEmpty()) {
        setFitted(p, inner, word, typeOfWord(legend), color);
    }
}

} // namespace

const CapLegend& legendOf(const char* keyName) {
    for (const CapLegend* found :
         {findLegend(legends, keyName), findLegend(functionKeys, keyName), findLegend(letters, keyName)})
        if (found) return *found;
    throw std::out_of_range(std::string("no legend for the key ") + keyName);
}

void paintCap(QPainter& p, const QRectF& area, const CapLegend& legend, Frame frame) {
    const CapColors colors = colorsOf(legend.tone, frame);
    const QRectF face = faceOf(area, frame);
    plate(p, area, 4.5, vertical(area, colors.skirtTop, colors.skirtBottom), frameEdge(colors, frame));
    plate(p, face, 3.5, vertical(face, colors.faceTop, colors.faceBottom), colors.rim);
    paintLegend(p, face, legend, colors.legend);
}

void paintLitCap(QPainter& p, const QRectF& area, const CapLegend& legend, const QColor& light) {
    const QRectF face = faceOf(area, Frame::Rest);
    glow(p, area, 4.5, light, 4, 120);
    plate(p, area, 4.5, vertical(area, mixed(palette::navy, light, 0.25), mixed(palette::navy, light, 0.6)),
          mixed(palette::navy, light, 0.7));
    plate(p, face, 3.5, vertical(face, mixed(palette::slate, light, 0.14), mixed(palette::navy, light, 0.1)),
          mixed(palette::slate, light, 0.45));
    paintLegend(p, face, legend, mixed(light, QColor(255, 255, 255), 0.45));
}

} // namespace tarnix::art
