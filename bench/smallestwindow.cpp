#include <QApplication>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

// What the start of the game is compared with: one window with a picture, the file named on the command line, and one
// line of text. It stays open until somebody ends it.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QWidget window;
    QVBoxLayout layout(&window);
    layout.setContentsMargins(0, 0, 0, 0);
    QLabel picture;
    picture.setPixmap(QPixmap(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString()));
    QLabel text(QStringLiteral("One line of text"));
    layout.addWidget(&picture);
    layout.addWidget(&text);
    window.show();
    return QApplication::exec();
}
