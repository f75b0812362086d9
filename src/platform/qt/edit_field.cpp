#include "platform/edit_field.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <algorithm>

#include "convert.h"
#include "fonts.h"
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
    unsigned id = 0;
    QPointer<EditWidget> widget; ///< gone with the parent's native window
};

EditField::EditField(Window& parent, unsigned id, const Rect& clientRect, const EditStyle& style)
    : m_native(std::make_unique<Native>()) {
    m_native->id = id;
    if (!parent.exists()) return;
    WindowWidget* window = parent.native()->widget;
    auto* edit = new EditWidget(*window, style.numbersOnly);
    m_native->widget = edit;
    paintWith(*edit, style);
    edit->setGeometry(toQt(clientRect));
    edit->show();
    QObject::connect(edit, &QLineEdit::textEdited, window,
                     [window, id] { window->call([id](Window& told) { told.OnEditChange(id); }); });
}

EditField::~EditField() {
    if (m_native->widget) m_native->widget->parentWindow().discard(*m_native->widget);
}

unsigned EditField::id() const {
    return m_native->id;
}

std::string EditField::text() const {
    return m_native->widget ? m_native->widget->text().toStdString() : std::string();
}

void EditField::setText(const std::string& text) {
    if (m_native->widget) m_native->widget->setText(decodeText(text));
}

void EditField::setVisible(bool visible) {
    if (m_native->widget) m_native->widget->setVisible(visible);
}

void EditField::setEnabled(bool enabled) {
    if (m_native->widget) m_native->widget->setEnabled(enabled);
}

void EditField::setFocus() {
    if (m_native->widget) m_native->widget->setFocus();
}

} // namespace tarnix
