// SPDX-License-Identifier: GPL-3.0-or-later
// The numbered messages of saving and loading documents, as a table.
#pragma once

#include <string>

namespace quindar {

enum DocumentMessage {
    kMsgFileWasNotSaved = 21805,
    kMsgReadOnly = 21816,
    kMsgAxisVariables = 21808,
    kMsgXDataPoint = 21810,
    kMsgYDataPoint = 21811,
    kMsgZDataPoint = 21812,
    kMsgDataSetName = 21813,
    kMsgFunctionNotLoaded = 30547,
    kMsgUnableToRead = 32551,
    kMsgNotAText = 32552,
    kCaptionSaveFile = 21804,
    kCaptionFileOpen = 21814,
    kCaptionFunctionManager = 30500,
};

// The text of a message or caption; empty for an unknown number.
const char *document_message_text(int number);

// The message with its arguments put in (printf-style, at most the ones it names).
std::string document_message(int number, const char *text = nullptr);
std::string document_message(int number, const char *first, int index, const char *last);
std::string document_message(int number, int index, const char *last);

}  // namespace quindar
