#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace brindor::toolkit::qt {

// A text as a widget shows it: read as UTF-8 or Windows-1252, a line break of any form as one line feed.
QString shown(std::string_view bytes);

// A text to be wrapped: a number stays with the abbreviation or the bracket before it, "ca. 1373", "(reign) -480".
QString unbroken(QString text);

// A typed text as the records hold it: UTF-8, a line break as carriage return and line feed.
std::string bytesof(const QString& typed);

// A text for a place in which Qt takes "&" for the mark of an access key.
QString withoutmnemonic(QString text);

// A text for a place in which Qt would take "<b>" for markup.
QString withoutmarkup(const QString& text);

} // namespace brindor::toolkit::qt
