// The type scale: every word in the art is set in one of these.
#pragma once

#include <QFont>
#include <QPainter>
#include <QString>
#include <vector>

namespace tarnix::art {

enum class Type {
    Display,      ///< the program's name in the window's head
    Heading,      ///< a question, a page's title
    Body,         ///< sentences
    Label,        ///< words beside controls
    Title,        ///< a dialog's title, set as the program sets a notice's
    Caption,      ///< headings of groups, hints
    Button,       ///< words on large buttons and tabs
    Small,        ///< words on small buttons
    Legend,       ///< a key's letter
    LegendNumber, ///< a function key's number
    LegendSign,   ///< a sign that stands alone on a key
    LegendTwo,    ///< one of two signs on a key
    LegendWide,   ///< a word on a wide key
    LegendWord    ///< a word on a key of a letter's size
};

/// True when the family that the art is set in is installed.
bool typeAvailable();
/// Its name and the package that brings it, for a message.
QString typeRequirement();

QFont typeFace(Type type);

/// Sets one line inside an area; the whole line is centred on the height of its capitals, so that words sit
/// evenly in buttons whatever letters they have.
void setText(QPainter& p, const QRectF& area, const QString& text, Type type, const QColor& color,
             Qt::Alignment horizontal = Qt::AlignHCenter);
/// Capitals with wide spacing, for wordmarks and group headings.
void setSpaced(QPainter& p, const QRectF& area, const QString& text, Type type, const QColor& color,
               double spacing, Qt::Alignment horizontal = Qt::AlignHCenter);
/// The same, set smaller where the line, or the one that stands beside it, is wider than the area.
void setFitted(QPainter& p, const QRectF& area, const QString& text, Type type, const QColor& color,
               const QString& beside = {});
double textWidth(const QString& text, Type type);

/// A line as it stands in a picture, in the picture's own pixels.
struct PlacedLine {
    QRectF area; ///< of its ink
    QString text;
};
/// The lines that were set since the last call.
std::vector<PlacedLine> takePlacedLines();

/// While one lives, what is set belongs to the picture of a thing and is not there to be read.
class Illustration {
  public:
    Illustration();
    ~Illustration();
    Illustration(const Illustration&) = delete;
    Illustration& operator=(const Illustration&) = delete;
};

} // namespace tarnix::art
