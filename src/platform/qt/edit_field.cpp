#include "platform/edit_field.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <algorithm>

#include "convert.h"
#include "event_gate.h"
#include "fonts.h"
#include "modal_runs.h"
#include "native_window.h"
#include "text_decoding.h"
#include "window_widget.h"

namespace tarnix {

namespace {

bool isDigits(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// The toolkit's line editor, whose keys go to the window first.
class EditWidget : public QLineEdit {
  public:
    EditWidget(WindowWidget& window, bool numbersOnly)
        : QLineEdit(&window), m_window(window), m_numbersOnly(numbersOnly) {
        setFrame(false);
        setTextMargins(1, 0, 1, 0);
    }

    WindowWidget& parentWindow() { return m_window; }

    bool event(QEvent* event) override {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
            return QLineEdit::event(event);
        if (m_window.offerKey(*static_cast<QKeyEvent*>(event))) return true;
        QLineEdit::event(event);
        // What the field has no use for would otherwise go to the window a second time.
        event->accept();
        return true;
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool command = event->modifiers().testFlag(Qt::ControlModifier);
        const QString typed = event->text();
        const bool printable = !typed.isEmpty() && typed.at(0).isPrint();
        if (m_numbersOnly && printable && !command && !isDigits(typed)) return;
        QLineEdit::keyPressEvent(event);
    }

    void inputMethodEvent(QInputMethodEvent* event) override {
        if (m_numbersOnly && !isDigits(event->commitString())) return;
        QLineEdit::inputMethodEvent(event);
    }

  private:
    WindowWidget& m_window;
    bool m_numbersOnly;
};

void paintWith(QLineEdit& edit, const EditStyle& style) {
    QPalette palette = edit.palette();
    palette.setColor(QPalette::Text, toQt(style.text));
    palette.setColor(QPalette::Base, toQt(style.background));
    edit.setPalette(palette);
    edit.setFont(fontFor({}));
}

} // namespace

struct EditField::Native {
    Window& parent;
    unsigned id;
    Rect place;
    EditStyle style;
    QString text = {}; ///< what the field holds, or will when it is made
    bool enabled = true;
    bool made = false;
    QPointer<EditWidget> widget = {}; ///< gone with the parent's native window

    void make();
    void show(const QString& newText);
    void typed();
    void changed();
};

/// The toolkit's editor brings the fonts, which a start does without (10 ms).
void EditField::Native::make() {
    if (made || !parent.exists()) return;
    made = true;
    WindowWidget* window = parent.native()->widget;
    auto* edit = new EditWidget(*window, style.numbersOnly);
    widget = edit;
    paintWith(*edit, style);
    edit->setGeometry(toQt(place));
    edit->setText(text);
    edit->setEnabled(enabled);
    edit->show();
    edit->setAccessibleName(decodeText(style.caption));
    QObject::connect(edit, &QLineEdit::textEdited, edit, [this] { typed(); });
    QObject::connect(edit, &QLineEdit::textChanged, edit, [this] { changed(); });
}

void EditField::Native::show(const QString& newText) {
    text = newText;
    if (widget) widget->setText(text);
}

void EditField::Native::typed() {
    text = widget->text();
    widget->parentWindow().call([number = id](Window& told) { told.OnEditChange(number); });
}

/// What was typed or set by the program is `text` already. Assistive technology sets the text as well, also
/// where the user has no way to the field, and waits until it is set: the window hears of it afterwards.
void EditField::Native::changed() {
    const QString entered = widget->text();
    if (entered == text) return;
    if (isShutOut(parent) || !widget->isEnabled()) return show(QString(text));
    text = entered;
    EventGate::instance().post([window = QPointer<WindowWidget>(&widget->parentWindow()), number = id] {
        if (window) window->call([number](Window& told) { told.OnEditChange(number); });
    });
}

EditField::EditField(Window& parent, unsigned id, const Rect& clientRect, const EditStyle& style)
    : m_native(new Native{parent, id, clientRect, style}) {
    if (style.visible) m_native->make();
}

EditField::~EditField() {
    if (m_native->widget) m_native->widget->parentWindow().discard(*m_native->widget);
}

unsigned EditField::id() const {
    return m_native->id;
}

std::string EditField::text() const {
    if (m_native->made && !m_native->widget) return {};
    return (m_native->widget ? m_native->widget->text() : m_native->text).toStdString();
}

void EditField::setText(const std::string& text) {
    m_native->show(decodeText(text));
}

void EditField::setVisible(bool visible) {
    if (visible) m_native->make();
    if (!m_native->widget) return;
    if (visible)
        m_native->widget->show();
    else
        m_native->widget->parentWindow().hideChild(*m_native->widget);
}

void EditField::setEnabled(bool enabled) {
    m_native->enabled = enabled;
    if (m_native->widget) m_native->widget->setEnabled(enabled);
}

void EditField::setFocus() {
    if (m_native->widget) m_native->widget->setFocus();
}

} // namespace tarnix
