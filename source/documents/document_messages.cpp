// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the document messages, spelled as the users have always seen them.
#include "document_messages.h"

#include <cstdio>

namespace quindar {

namespace {

struct MessageRow {
    int number;
    const char *text;
};

const MessageRow kMessages[] = {
    {kMsgFileWasNotSaved, "File was not saved!"},
    {kMsgReadOnly, "The file %s is read only and can not be saved."},
    {kMsgAxisVariables,
     "File data for the variables in graph \"%s\" could not be completely "
     "loaded, your file may be corrupt!"},
    {kMsgXDataPoint,
     "File data for data set \"%s\" (X Data Point #%d) in graph \"%s\" could "
     "not be completely loaded. Your file may be corrupt!"},
    {kMsgYDataPoint,
     "File data for data set \"%s\" (Y Data Point #%d) in graph \"%s\" could "
     "not be completely loaded. Your file may be corrupt!"},
    {kMsgZDataPoint,
     "File data for data set \"%s\" (Z Data Point #%d) in graph \"%s\" could "
     "not be completely loaded. Your file may be corrupt!"},
    {kMsgDataSetName,
     "File data for data set %d of graph \"%s\" does not have a name and could "
     "not be loaded. Your file may be corrupt!"},
    {kMsgFunctionNotLoaded, "Function '%s' Could Not Be Loaded!"},
    {kMsgUnableToRead, "Unable to read file %s."},
    // A file with NUL bytes is no text an editor can hold.
    {kMsgNotAText, "The file %s holds binary data and is not a document."},
    {kCaptionSaveFile, "Save File"},
    {kCaptionFileOpen, "File Open"},
    {kCaptionFunctionManager, "Function Manager"},
};

template <class... Arguments>
std::string format(int number, Arguments... arguments) {
    const char *pattern = document_message_text(number);
    const int size = std::snprintf(nullptr, 0, pattern, arguments...);
    std::string text(static_cast<std::size_t>(size > 0 ? size : 0), '\0');
    std::snprintf(text.data(), text.size() + 1, pattern, arguments...);
    return text;
}

}  // namespace

const char *document_message_text(int number) {
    for (const MessageRow &row : kMessages)
        if (row.number == number) return row.text;
    return "";
}

std::string document_message(int number, const char *text) {
    return format(number, text != nullptr ? text : "");
}

std::string document_message(int number, const char *first, int index, const char *last) {
    return format(number, first != nullptr ? first : "", index, last != nullptr ? last : "");
}

std::string document_message(int number, int index, const char *last) {
    return format(number, index, last != nullptr ? last : "");
}

}  // namespace quindar
