// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>

#include "file_association.h"
#include "file_io.h"
#include "temp_folder.h"

namespace quindar {
namespace {

TEST(FileAssociation, ExecArgumentQuotesOnlyWhatNeedsIt) {
    const struct {
        const char *program;
        const char *argument;
    } cases[] = {
        {"/usr/bin/quindar", "/usr/bin/quindar"},
        {"/home/me/My Programs/quindar", "\"/home/me/My Programs/quindar\""},
        {"/opt/a$b/quindar", "\"/opt/a\\\\$b/quindar\""},
        {"/opt/q\"x/quindar", "\"/opt/q\\\\\"x/quindar\""},
        {"/opt/back\\slash", "\"/opt/back\\\\\\\\slash\""},
        {"/opt/two\nlines", "\"/opt/two\\nlines\""},  // the entry stays one line
    };
    for (const auto &row : cases) {
        EXPECT_EQ(desktop_exec_argument(row.program), row.argument) << row.program;
    }
}

TEST(FileAssociation, EntryOpensTheFileWithTheProgram) {
    const std::string entry = desktop_entry("/opt/quindar/quindar", "/opt/quindar/icon.svg");
    EXPECT_EQ(entry.rfind("[Desktop Entry]\n", 0), 0u);
    EXPECT_NE(entry.find("\nExec=/opt/quindar/quindar %f\n"), std::string::npos);
    EXPECT_NE(entry.find("\nIcon=/opt/quindar/icon.svg\n"), std::string::npos);
    EXPECT_NE(entry.find("\nMimeType=application/x-quindar;\n"), std::string::npos);
    EXPECT_NE(entry.find("\nType=Application\n"), std::string::npos);
    const std::string mime = mime_package_xml();
    EXPECT_NE(mime.find("<mime-type type=\"application/x-quindar\">"), std::string::npos);
    EXPECT_NE(mime.find("<glob pattern=\"*.qnd\"/>"), std::string::npos);
}

TEST(FileAssociation, RegisterWritesBothFilesOnlyWhenChanged) {
    testing::TempFolder data;
    const std::string mime = data.path() + "/mime/packages/quindar.xml";
    const std::string entry = data.path() + "/applications/quindar.desktop";
    AssociationResult first = register_file_association(data.path(), "/opt/q/quindar", "quindar");
    EXPECT_TRUE(first.ok);
    EXPECT_TRUE(first.changed);
    EXPECT_EQ(read_whole_file(mime).value_or(""), mime_package_xml());
    EXPECT_EQ(read_whole_file(entry).value_or(""), desktop_entry("/opt/q/quindar", "quindar"));

    // The same registration again leaves the files alone, so their times stay.
    std::filesystem::last_write_time(entry, std::filesystem::file_time_type{});
    AssociationResult again = register_file_association(data.path(), "/opt/q/quindar", "quindar");
    EXPECT_TRUE(again.ok);
    EXPECT_FALSE(again.changed);
    EXPECT_EQ(std::filesystem::last_write_time(entry), std::filesystem::file_time_type{});

    // A moved program rewrites the entry.
    AssociationResult moved = register_file_association(data.path(), "/new/quindar", "quindar");
    EXPECT_TRUE(moved.changed);
    EXPECT_NE(read_whole_file(entry).value_or("").find("Exec=/new/quindar %f"), std::string::npos);
    // Written through a temporary file that did not stay behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(data.path() + "/applications"),
                            std::filesystem::directory_iterator()),
              1);
}

TEST(FileAssociation, UnregisterRemovesBothFiles) {
    testing::TempFolder data;
    register_file_association(data.path(), "/opt/q/quindar", "quindar");
    AssociationResult removed = unregister_file_association(data.path());
    EXPECT_TRUE(removed.ok);
    EXPECT_TRUE(removed.changed);
    EXPECT_FALSE(std::filesystem::exists(mime_package_path(data.path())));
    EXPECT_FALSE(std::filesystem::exists(desktop_entry_path(data.path())));
    AssociationResult nothing = unregister_file_association(data.path());
    EXPECT_TRUE(nothing.ok);
    EXPECT_FALSE(nothing.changed);
}

TEST(FileAssociation, AReadOnlyFolderFailsWithoutHarm) {
    if (geteuid() == 0) GTEST_SKIP() << "root writes into read-only folders";
    testing::TempFolder data;
    ::chmod(data.path().c_str(), 0500);
    AssociationResult result = register_file_association(data.path(), "/opt/q/quindar", "quindar");
    ::chmod(data.path().c_str(), 0700);
    EXPECT_FALSE(result.ok);
    EXPECT_FALSE(result.changed);
}

TEST(FileAssociation, AReadOnlyEntryIsLeftAsItIs) {
    testing::TempFolder data;
    std::filesystem::create_directories(data.path() + "/applications");
    const std::string entry = data.write("applications/quindar.desktop", "[Desktop Entry]\nold\n");
    ::chmod(entry.c_str(), 0444);
    AssociationResult result = register_file_association(data.path(), "/opt/q/quindar", "quindar");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(read_whole_file(entry).value_or(""), "[Desktop Entry]\nold\n");
}

TEST(FileAssociation, AFileInTheWayOfAFolderFails) {
    testing::TempFolder data;
    data.write("applications", "not a folder");
    AssociationResult result = register_file_association(data.path(), "/opt/q/quindar", "quindar");
    EXPECT_FALSE(result.ok);
    EXPECT_TRUE(result.changed);  // the MIME package went in before the entry failed
    EXPECT_EQ(read_whole_file(data.path() + "/applications").value_or(""), "not a folder");
}

}  // namespace
}  // namespace quindar

namespace quindar {
namespace {

// The desktop's own MIME tool reads the package and maps "*.qnd" to the document type.
TEST(FileAssociation, TheMimeToolAcceptsThePackage) {
    if (std::system("command -v update-mime-database >/dev/null 2>&1") != 0) {
        GTEST_SKIP() << "update-mime-database is not installed";
    }
    testing::TempFolder data;
    ASSERT_TRUE(register_file_association(data.path(), "/opt/q/quindar", "quindar").ok);
    const std::string command = "update-mime-database '" + data.path() + "/mime' 2>&1";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::string globs = read_whole_file(data.path() + "/mime/globs2").value_or("");
    EXPECT_NE(globs.find("application/x-quindar:*.qnd"), std::string::npos) << globs;
}

}  // namespace
}  // namespace quindar
