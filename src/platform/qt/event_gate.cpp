#include "event_gate.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPointer>
#include <QWindow>
#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>

#include "key_source_qt.h"

namespace tarnix {

namespace {

EventGate* g_gate = nullptr;

/// The gate's note to itself that work waits.
QEvent::Type deliveryType() {
    static const auto number = static_cast<QEvent::Type>(QEvent::registerEventType());
    return number;
}

bool isInput(const QObject& receiver, QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Enter:
        case QEvent::Leave:
        case QEvent::Close:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TouchCancel:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::DragLeave:
        case QEvent::Drop:
            // Widgets get theirs from their window, which is held back here.
            return receiver.isWindowType();
        case QEvent::InputMethod:
            return true;
        default:
            return false;
    }
}

/// Whether a modal window that opened after the event was kept shuts its window out.
bool blockedByModal(QObject* receiver) {
    auto* window = qobject_cast<QWindow*>(receiver);
    const QWindow* modal = QGuiApplication::modalWindow();
    return window && modal && window != modal && !modal->isAncestorOf(window, QWindow::IncludeTransients);
}

} // namespace

EventGate::EventGate() {
    g_gate = this;
    connect(&m_postsNotifier, &QSocketNotifier::activated, this, [this] { takePosts(); });
    QCoreApplication::instance()->installEventFilter(this);
}

EventGate::~EventGate() {
    g_gate = nullptr;
}

EventGate& EventGate::instance() {
    return *g_gate;
}

void EventGate::enter(Work work) {
    if (!holding()) {
        work();
        return;
    }
    m_waiting.push_back(std::move(work));
    askForDelivery();
}

void EventGate::takePosts() {
    std::ranges::move(m_posts.take(), std::back_inserter(m_waiting));
    askForDelivery();
}

EventGate::Shut::~Shut() {
    EventGate& gate = instance();
    if (--gate.m_shut == 0) gate.askForDelivery();
}

void EventGate::askForDelivery() {
    if (m_shut > 0 || m_deliveryAsked || m_waiting.empty()) return;
    m_deliveryAsked = true;
    QCoreApplication::postEvent(this, new QEvent(deliveryType()));
}

// One at a time, each from the event loop: what goes in may run a loop of its own, which then delivers the
// rest.
void EventGate::deliverNext() {
    m_deliveryAsked = false;
    if (m_shut > 0 || m_waiting.empty()) return;
    const Work work = std::move(m_waiting.front());
    m_waiting.pop_front();
    askForDelivery();
    work();
}

bool EventGate::event(QEvent* event) {
    if (event->type() != deliveryType()) return QObject::event(event);
    deliverNext();
    return true;
}

bool EventGate::eventFilter(QObject* receiver, QEvent* event) {
    if (event == m_admitted || !isInput(*receiver, event->type())) return false;
    if (holding()) {
        keep(receiver, *event);
        return true;
    }
    return interceptKey(*event);
}

void EventGate::keep(QObject* receiver, const QEvent& event) {
    enter([this, target = QPointer<QObject>(receiver), copy = std::shared_ptr<QEvent>(event.clone())] {
        if (!target || interceptKey(*copy)) return;
        const bool closing = copy->type() == QEvent::Close;
        if (!closing && copy->type() != QEvent::MouseButtonRelease && blockedByModal(target)) return;
        const QEvent* const before = std::exchange(m_admitted, copy.get());
        QCoreApplication::sendEvent(target, copy.get());
        m_admitted = before;
    });
}

} // namespace tarnix
