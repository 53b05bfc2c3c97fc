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

QString unbroken(QString text)
{
    const auto holds = [&text](qsizetype at) { return text[at] == u'.' || text[at] == u')'; };
    const auto isdigit = [&text](qsizetype at) { return at < text.size() && text[at].isDigit(); };
    for (qsizetype at = 1; at < text.size(); ++at) {
        const bool number = isdigit(at + 1) || (at + 1 < text.size() && text[at + 1] == u'-' && isdigit(at + 2));
        if (text[at] == u' ' && holds(at - 1) && number) {
            text[at] = QChar::Nbsp;
        }
    }
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
