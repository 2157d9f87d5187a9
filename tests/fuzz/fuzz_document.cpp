// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
// The document reader and writer: mutated documents are loaded into a fresh engine, saved, and
// the saved file loaded again. Promise: whatever loads saves, and what was saved loads.
#include "document_file.h"
#include "fuzz_driver.h"
#include "fuzz_files.h"

namespace {

using namespace quindar;

bool load(const std::string &path, Parser &parser, DocumentContent &content) {
    DocumentFile file(parser, content);
    return file.Read(path.c_str());
}

bool save(const std::string &path, Parser &parser, DocumentContent &content) {
    DocumentFile file(parser, content);
    return file.Write(path.c_str());
}

}  // namespace

int main(int argc, char **argv) {
    fuzz::ScratchFolder folder;
    const std::string input = folder.file("input.qnd");
    const std::string saved = folder.file("saved.qnd");
    std::vector<std::string> seeds = fuzz::seed_files(QUINDAR_EXAMPLES_DIR, ".qnd");
    for (const std::string &more : fuzz::seed_files(QUINDAR_DOCUMENT_DATA_DIR, ".qnd"))
        seeds.push_back(more);
    const std::vector<std::string> dictionary = {"\r\n[DECLARED VARIABLES]\r\n",
                                                 "\r\n[DECLARED FUNCTIONS]\r\n",
                                                 "\r\n[SETUP]\r\n",
                                                 "\r\n[FONT]\r\n",
                                                 "\r\n[GRAPHS]\r\n",
                                                 "\r\n[Graph1]\r\n",
                                                 "\r\n[INTEGRATION PARAMETERS]\r\n",
                                                 "AnsPrecision=",
                                                 "AnsZeroPrecision=",
                                                 "NumDataSets=",
                                                 "sNumPts=",
                                                 "sPt0=",
                                                 "DataSet1=s",
                                                 "Function1=f[x]=",
                                                 "XAxisVariable=x(",
                                                 "Graph1=",
                                                 "FaceName=",
                                                 "2147483647",
                                                 "-1",
                                                 "1e+999999",
                                                 "=",
                                                 "\r\n",
                                                 "\n",
                                                 "\r",
                                                 std::string(600, 'g')};
    return fuzz::run(argc, argv, "fuzz_document", seeds, dictionary, [&](const std::string &text) {
        fuzz::write_file(input, text);
        Parser parser("", "");
        DocumentContent content;
        if (!load(input, parser, content)) return true;
        if (!save(saved, parser, content)) return false;
        Parser again("", "");
        DocumentContent reloaded;
        return load(saved, again, reloaded);
    });
}
