// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "file_association.h"

#include <filesystem>

#include "changed_file.h"

namespace quindar {

std::string mime_package_xml() {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<mime-info xmlns=\"http://www.freedesktop.org/standards/shared-mime-info\">\n"
           "  <mime-type type=\"" +
           std::string(kDocumentMimeType) +
           "\">\n"
           "    <comment>Quindar document</comment>\n"
           "    <icon name=\"application-x-quindar\"/>\n"
           "    <glob pattern=\"*.qnd\"/>\n"
           "  </mime-type>\n"
           "</mime-info>\n";
}

std::string desktop_exec_argument(std::string_view program) {
    // Exec arguments with reserved characters go in double quotes, where " ` $ and \ take a
    // backslash; the key's value is then an escaped string, which doubles every backslash.
    constexpr std::string_view kReserved = " \t\n\r\"'\\><~|&;$*?#()`";
    if (program.find_first_of(kReserved) == std::string_view::npos) return std::string(program);
    std::string quoted = "\"";
    for (char c : program) {
        if (c == '"' || c == '`' || c == '$' || c == '\\') quoted += '\\';
        quoted += c;
    }
    quoted += '"';
    // Control characters would break the entry's line; the value escapes name them.
    std::string escaped;
    for (char c : quoted) {
        if (c == '\n') {
            escaped += "\\n";
        } else if (c == '\t') {
            escaped += "\\t";
        } else if (c == '\r') {
            escaped += "\\r";
        } else {
            escaped += c;
            if (c == '\\') escaped += '\\';
        }
    }
    return escaped;
}

std::string desktop_entry(std::string_view program, std::string_view icon) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Quindar\n"
           "GenericName=Mathematics Workbench\n"
           "Comment=Compute expressions, functions, statistics and graphs in a Math Editor\n"
           "Exec=" +
           desktop_exec_argument(program) + " %f\n" + "Icon=" + std::string(icon) +
           "\n"
           "Terminal=false\n"
           "Categories=Education;Science;Math;\n"
           "MimeType=" +
           std::string(kDocumentMimeType) +
           ";\n"
           "StartupNotify=true\n";
}

std::string mime_package_path(const std::string &dataHome) {
    return dataHome + "/mime/packages/quindar.xml";
}

std::string desktop_entry_path(const std::string &dataHome) {
    return dataHome + "/applications/quindar.desktop";
}

AssociationResult register_file_association(const std::string &dataHome, std::string_view program,
                                            std::string_view icon) {
    AssociationResult result;
    const std::pair<std::string, std::string> files[] = {
        {mime_package_path(dataHome), mime_package_xml()},
        {desktop_entry_path(dataHome), desktop_entry(program, icon)},
    };
    for (const auto &[path, content] : files) {
        bool written = false;
        result.ok = write_file_if_changed(path, content, written) && result.ok;
        result.changed = result.changed || written;
    }
    return result;
}

AssociationResult unregister_file_association(const std::string &dataHome) {
    AssociationResult result;
    for (const std::string &path : {mime_package_path(dataHome), desktop_entry_path(dataHome)}) {
        std::error_code error;
        if (std::filesystem::remove(path, error)) result.changed = true;
        if (error) result.ok = false;
    }
    return result;
}

}  // namespace quindar
