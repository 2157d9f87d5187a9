// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The texts stand as the users of earlier versions know them, spelling included.
#include "graph_messages.h"

#include <initializer_list>

namespace quindar {

namespace {

struct GraphMessage {
    int id;
    const char *text;
};

constexpr GraphMessage kMessages[] = {
    {kMsgErrorAtPoint, "An error occured at %s = %s : %s"},
    {kMsgErrorAtGridPoint, "An error occured at %s = %s and %s = %s : %s"},
    {kMsgCouldNotMap, "\"%s\" could not be mapped. Graph could not be created!"},
    {kMsgCouldNotFind, "\"%s\" could not be found. The graph could not be created!"},
    {kMsgPieNegatives,
     "Warning, there were negative values encountered which can not be graphed in s Pie "
     "Chart, these values were ignored!"},
    {kMsgGraphingUtility, "Graphing Utility"},
    {kMsgNotAGraphFile,
     "You must select a valid Quindar graph file with extension of \".g2d\" or \".g3d\""},
    {kMsgOpenGraphFileError, "Open Graph File Error"},
    {kMsgIncompatibleFileType,
     "You have selected a file type which is not compatible with the graphing utility, please "
     "choose riles with eExtensions of \".g2d\" or \".g3d\"."},
    {kMsgSharedXOnly,
     "The X data point values must be equal to use any graph type other than \"Plot\", "
     "\"Line\", \"Area\", \"Polar\" and \"Scatter\" types. Try using one of these 5 types."},
    {kMsgGraphWindow, "Graph Window"},
    {kMsgOrientationSaved,
     "The current rotation, inclination and margins have been saved as the default orientation."},
    {kMsgRotationSaved, "The current x,y,z rotation has been saved as the default orientation."},
    {kMsgMarginsSaved, "The current margins have been saved as the default"},
    {kMsgNoLogX,
     "Logrithmic X-Axis is only supported for \"Plot\", \"Area\", \"Scatter\", \"HiLo\", "
     "\"HiLoOpenClose\", and \"Candle\" graph types"},
    {kMsgNoLogY,
     "Logrithmic Y-Axis is only supported for \"Plot\", \"Area\", \"Bar\", \"Stacking Bar\", "
     "\"Scatter\", \"HiLo\", \"HiLoOpenClose\", and \"Candle\" graph types"},
};

}  // namespace

std::string_view graph_message(int id) {
    for (const GraphMessage &message : kMessages)
        if (message.id == id) return message.text;
    return {};
}

std::string format_graph_message(int id, std::initializer_list<std::string_view> fields) {
    const std::string_view text = graph_message(id);
    std::string out;
    auto field = fields.begin();
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 1 < text.size() && text[i + 1] == 's') {
            if (field != fields.end()) out += *field++;
            ++i;
        } else {
            out += text[i];
        }
    }
    return out;
}

}  // namespace quindar
