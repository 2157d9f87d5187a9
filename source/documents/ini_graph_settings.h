// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// The settings file as the source of new graphs' default colours and orientation: read into
// the plain record the graph model takes, and the colours saved back from it.

#include "graph_defaults.h"

namespace quindar {

// "Graph Default Orientation" and "Graph Default Colors" of the file at path; a missing key,
// or a colour of fewer than three fields, keeps the built-in value.
GraphDefaults read_graph_defaults(const char *path);
// The same from the application's settings file in the user's configuration folder.
GraphDefaults read_graph_defaults();

// The sixteen colours as "r,g,b" under "Graph Default Colors"; false at the first failed write.
bool save_graph_default_colors(const char *path, const GraphDefaults &defaults);

}  // namespace quindar
