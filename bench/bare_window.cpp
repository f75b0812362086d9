// What the toolkit costs by itself: a frameless window of the main window's size, painted in two colours.
#include <QApplication>
#include <QPainter>
#include <QWidget>
#include <csignal>

namespace {

class BareWindow : public QWidget {
  public:
    BareWindow() : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint) {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setFixedSize(805, 588);
        move(100, 100);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0x20, 0x28, 0x30));
        painter.fillRect(QRect(0, 0, width() / 2, height()), QColor(0x40, 0xC0, 0xE0));
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    BareWindow window;
    window.show();
    return QApplication::exec();
}
