#include "toolkit/qt/startviewer.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace brindor::toolkit::qt {

void startviewer(const std::string& file)
{
    const QString notepad = QStandardPaths::findExecutable("notepad");
    const QString own = QCoreApplication::applicationDirPath() + QLatin1String("/brindor-viewer");
    QProcess::startDetached(notepad.isEmpty() ? own : notepad, {QFile::decodeName(file.c_str())});
}

} // namespace brindor::toolkit::qt
