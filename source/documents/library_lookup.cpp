// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#include "library_lookup.h"

#include <sys/stat.h>
#include <time.h>

#include <string_view>
#include <vector>

#include "multi_string.h"
#include "text_helpers.h"

namespace quindar {

std::optional<LibraryFunctionText> lib_function_text(VarFunIniFile &library, const char *name) {
    if (name == nullptr || !library.IsFunction(name, nullptr)) return std::nullopt;
    long size = library.SizeOfLongestLine();
    if (size <= 0) return std::nullopt;
    std::vector<char> full(static_cast<std::size_t>(size));
    std::vector<char> value(static_cast<std::size_t>(size));
    library.GetFuncFullName(name, full.data(), static_cast<int>(size), nullptr);
    library.GetFunctionValue(full.data(), value.data(), static_cast<int>(size), nullptr);
    return LibraryFunctionText{full.data(), value.data()};
}

std::vector<std::string> library_categories(VarFunIniFile &library) {
    long size = library.SizeOfFunctionCatagories();
    if (size <= 0) return {};
    std::vector<char> list(static_cast<std::size_t>(size));
    library.GetFunctionCatagories(list.data(), static_cast<int>(size));
    return split_multi_string(list.data(), list.size());
}

std::optional<LibraryFunctionText> find_library_function(VarFunIniFile &library, const char *name) {
    if (name == nullptr) return std::nullopt;
    for (const auto &category : library_categories(library)) {
        library.SetFunctionFlagStr(category.c_str());
        if (auto found = lib_function_text(library, name)) return found;
    }
    return std::nullopt;
}

}  // namespace quindar

namespace quindar {

namespace {

std::string lower_case(std::string_view text) {
    std::string result(text);
    for (char &c : result) c = text::lower(c);
    return result;
}

long long nanoseconds(const timespec &time) {
    return static_cast<long long>(time.tv_sec) * 1000000000LL + time.tv_nsec;
}

// File times move in steps of the kernel's clock tick; this is well beyond any of them.
constexpr long long kTimeGrain = 2000000000LL;

}  // namespace

bool LibraryIndex::read(VarFunIniFile &library) {
    categoryNames = library_categories(library);
    names.clear();
    for (const auto &category : categoryNames) {
        const long size = library.SizeOfFunctionNames(category.c_str());
        if (size <= 0) continue;
        std::vector<char> list(static_cast<std::size_t>(size) + 1, '\0');
        if (!library.GetFunctionNames(list.data(), static_cast<int>(list.size()), category.c_str()))
            return false;
        for (const auto &entry : split_multi_string(list.data(), list.size())) {
            names[lower_case(entry)].insert(category);
            const auto bracket = entry.find('[');
            if (bracket != std::string::npos)
                names[lower_case(entry.substr(0, bracket))].insert(category);
        }
    }
    return true;
}

const std::unordered_set<std::string> &LibraryIndex::holders(const char *name) const {
    const auto found = names.find(lower_case(name));
    return found == names.end() ? none : found->second;
}

bool FileStamp::take(const std::string &path) {
    struct stat status {};
    valid = ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    if (!valid) return false;
    device = static_cast<unsigned long long>(status.st_dev);
    inode = static_cast<unsigned long long>(status.st_ino);
    size = static_cast<long long>(status.st_size);
    modified = nanoseconds(status.st_mtim);
    changed = nanoseconds(status.st_ctim);
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    taken = nanoseconds(now);
    return true;
}

bool FileStamp::vouches_for(const FileStamp &earlier) const {
    return valid && earlier.valid && device == earlier.device && inode == earlier.inode &&
           size == earlier.size && modified == earlier.modified && changed == earlier.changed &&
           earlier.modified + kTimeGrain < earlier.taken &&
           earlier.changed + kTimeGrain < earlier.taken;
}

}  // namespace quindar
