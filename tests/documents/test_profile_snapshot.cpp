// SPDX-License-Identifier: GPL-3.0-or-later
// One reading of a file answers as the profile calls on that file do; graph defaults from a
// settings file.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "documents_test_support.h"
#include "graph_data.h"
#include "ini_file.h"
#include "ini_graph_settings.h"
#include "profile.h"
#include "profile_snapshot.h"

namespace quindar::testing {
namespace {

struct Lookup {
    const char *section;
    const char *key;
    const char *deflt;
    std::size_t size;
};

TEST(ProfileSnapshot, AnswersAsTheProfileCalls) {
    const std::vector<std::string> files = {data_file("document_graphs.qnd"),
                                            data_file("document_settings.qnd"),
                                            data_file("settings_lf.ini"), data_file("garbage.bin")};
    const Lookup lookups[] = {
        {"Graph7", "Header", "", 1024},
        {"graph7", "header", "", 5},
        {"Graph7", "obsPt1", "", 128},
        {"Graph7", "missing", "dflt  ", 64},
        {"SETUP", "AngleType", "0", 16},
        {"FONT", "FaceName", "Arial", 32},
        {"INTEGRATION PARAMETERS", "IntZHiLimit", "", 1024},
        {"nowhere", "x", nullptr, 8},
        {"Graph2", "Function1", "", 3},
    };
    for (const std::string &path : files) {
        const ProfileSnapshot snapshot(file_content(path));
        for (const Lookup &l : lookups) {
            std::vector<char> buffer(l.size);
            const std::size_t n = GetPrivateProfileString(l.section, l.key, l.deflt, buffer.data(),
                                                          l.size, path.c_str());
            EXPECT_EQ(snapshot.String(l.section, l.key, l.deflt, l.size),
                      std::string(buffer.data(), n))
                << path << " " << l.section << "/" << l.key;
            EXPECT_EQ(snapshot.Int(l.section, l.key, -3),
                      GetPrivateProfileInt(l.section, l.key, -3, path.c_str()));
        }
        EXPECT_EQ(snapshot.Keys("Graph7"), profile_keys(path, "Graph7"));
        const IniFile file(path.c_str());
        for (const char *key : {"BackgroundColor", "MeshTopColor", "Color", "obsPt0"}) {
            TColor fromFile, fromSnapshot;
            EXPECT_EQ(snapshot.Color("Graph7", key, TColor::White, fromSnapshot),
                      file.GetColor("Graph7", key, TColor::White, fromFile));
            EXPECT_EQ(fromSnapshot, fromFile);
            char x1[8], y1[8], z1[8], x2[8], y2[8], z2[8];
            EXPECT_EQ(snapshot.Point("Graph7", key, x1, y1, z1, 8),
                      file.GetPoint("Graph7", key, x2, y2, z2, 8));
            EXPECT_STREQ(x1, x2);
            EXPECT_STREQ(y1, y2);
            EXPECT_STREQ(z1, z2);
        }
    }
}

TEST(ProfileSnapshot, KeyListIsCutAsTheProfileCallCutsIt) {
    std::string content = "[GRAPHS]\r\n";
    for (int i = 1; i <= 100; ++i) content += "Graph" + std::to_string(i) + "=g\r\n";
    const ProfileSnapshot snapshot(content);
    EXPECT_EQ(snapshot.Keys("GRAPHS").size(), 100u);
    const auto listed = snapshot.KeyList("GRAPHS", 512);
    EXPECT_LT(listed.size(), 100u);
    EXPECT_EQ(listed.front(), "Graph1");
}

TEST(GraphDefaultSettings, NewGraphsReadTheSettingsFile) {
    TempFolder folder;
    const std::string path = folder.file("Quindar.ini");
    write_content(path,
                  "[Graph Default Colors]\r\nBackground=1,2,3\r\nMeshTop=300,2\r\n"
                  "[Graph Default Orientation]\r\nRotation=45\r\nXRotation3D=60\r\n");
    const GraphDefaults settings = read_graph_defaults(path.c_str());
    GraphList list;
    GraphData *graph = add_new_graph(list, "G", &settings);
    EXPECT_EQ(graph->BackgroundColor, TColor(1, 2, 3));
    EXPECT_EQ(graph->MeshTopColor, TColor(0, 0, 0)) << "two fields give the default";
    EXPECT_EQ(graph->Rotation2D, 45);
    EXPECT_FLOAT_EQ(graph->XRotation, 60.0f);
    EXPECT_EQ(graph->Depth2D, 20);

    graph->SurfaceTopColor = TColor(7, 8, 9);
    GraphDefaults saved;
    graph->GetDefaultColors(saved);
    ASSERT_TRUE(save_graph_default_colors(path.c_str(), saved));
    TColor read;
    EXPECT_TRUE(
        IniFile(path.c_str()).GetColor("Graph Default Colors", "SurfaceTop", TColor::Black, read));
    EXPECT_EQ(read, TColor(7, 8, 9));
    EXPECT_EQ(profile_value(path, "Graph Default Colors", "MeshTop"), "0,0,0");
}

}  // namespace
}  // namespace quindar::testing
