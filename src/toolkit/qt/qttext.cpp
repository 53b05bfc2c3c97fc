#include "toolkit/qt/qttext.h"

#include "base/text.h"

#include <QTextDocument>

namespace brindor::toolkit::qt {

QString shown(std::string_view bytes)
{
    QString text = QString::fromStdString(toutf8(bytes));
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(u'\r', u'\n');
    return text;
}

std::string bytesof(const QString& typed)
{
    QString text = typed;
    text.replace(u'\n', QLatin1String("\r\n"));
    return text.toStdString();
}

QString withoutmnemonic(QString text)
{
    return text.replace(u'&', QLatin1String("&&"));
}

QString withoutmarkup(const QString& text)
{
    return Qt::mightBeRichText(text) ? QLatin1String("<span>") + text.toHtmlEscaped() + QLatin1String("</span>") : text;
}

} // namespace brindor::toolkit::qt
