#include "base/files.h"
#include "toolkit/qt/application.h"
#include "toolkit/qt/displayzoom.h"
#include "toolkit/qt/qttext.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScreen>

#include <cstddef>
#include <string>

// Shows the text file that it is started with. A program of its own: whoever starts it does not wait for it.
namespace {

constexpr std::size_t largestfile = std::size_t{16} << 20; // bytes
constexpr double textpoints = 13;
constexpr double textmargin = 24; // pixels

class Viewer : public QPlainTextEdit {
public:
    void showuntilclosed()
    {
        showMaximized();
        raise();
        activateWindow();
        loop_.exec();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape) {
            close();
        } else if (event->matches(QKeySequence::ZoomIn)) {
            zoomIn();
        } else if (event->matches(QKeySequence::ZoomOut)) {
            zoomOut();
        } else {
            QPlainTextEdit::keyPressEvent(event);
        }
    }

    void closeEvent(QCloseEvent* event) override
    {
        QPlainTextEdit::closeEvent(event);
        loop_.exit();
    }

private:
    QEventLoop loop_;
};

QString contentof(const std::string& file)
{
    const brindor::Result<std::string> content = brindor::readwhole(file, largestfile);
    return brindor::toolkit::qt::shown(content ? *content.value
                                               : "The file " + file + " cannot be read: " + content.reason + ".");
}

void view(const std::string& file)
{
    Viewer viewer;
    viewer.setObjectName("viewer");
    viewer.setWindowTitle(brindor::toolkit::qt::shown(file));
    viewer.setReadOnly(true);
    viewer.setFrameShape(QFrame::NoFrame);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont); // the text has columns
    const QSize display = viewer.screen()->availableSize();
    font.setPointSizeF(textpoints * brindor::toolkit::qt::startzoom(display).factor());
    viewer.setFont(font);
    viewer.setPlainText(contentof(file));
    viewer.document()->setDocumentMargin(textmargin);
    viewer.showuntilclosed();
}

} // namespace

int main(int argc, char** argv)
{
    const std::string file = argc > 1 ? argv[1] : "";
    return brindor::toolkit::qt::runapplication(argc, argv, [&file] { view(file); });
}
