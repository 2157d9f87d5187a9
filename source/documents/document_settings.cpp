// SPDX-License-Identifier: GPL-3.0-or-later
// The formats, the font and the calculus pages' settings of a document, as tables of keys.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>

#include "document_file.h"
#include "profile_snapshot.h"

namespace quindar {

namespace {

// A missing zero threshold reads as this text, which a 32-bit float holds as 0.
constexpr const char *kMissingZeroPrecision = "1.0e-307";
// The largest zero threshold the options offer; a larger one would print every answer as 0.
constexpr float kHighestZeroPrecision = 0.1f;

// The values each number of a document may take; one read outside is held at the nearer end,
// so that a hostile document cannot ask the printing for a billion digits. Keys not listed
// take any int.
struct NumberRange {
    const char *key;
    int low, high;
};

const NumberRange kNumberRanges[] = {
    {"AnsPrecision", 1, 14},    {"VarPrecision", 1, 14},     {"AnsFormat", 0, 1},
    {"VarFormat", 0, 1},        {"AngleType", 0, 1},         {"Height", -1638, 1638},
    {"Width", -1638, 1638},     {"Escapement", -3600, 3600}, {"Orientation", -3600, 3600},
    {"Weight", 0, 1000},        {"IntType", 1, 3},           {"IntPrecision", 1, 14},
    {"IntAccuracy", 0, 100},    {"DiffPrecision", 1, 14},    {"DiffDispFunc", 0, 1},
    {"DiffDispFirstDir", 0, 1}, {"DiffDispSecondDir", 0, 1}, {"DiffDispThirdDir", 0, 1},
};

int held_in_range(const char *key, int value) {
    for (const NumberRange &range : kNumberRanges)
        if (std::strcmp(range.key, key) == 0) return std::clamp(value, range.low, range.high);
    return value;
}

// Not a number, or below 0, means no threshold.
float zero_precision_from_text(const std::string &text) {
    const double value = std::strtod(text.c_str(), nullptr);
    if (!(value > 0.0)) return 0.0f;
    return value > kHighestZeroPrecision ? kHighestZeroPrecision : static_cast<float>(value);
}

}  // namespace

// One key of a record: exactly one of the field pointers is set.
template <class Record>
struct DocumentFieldKey {
    const char *key;
    int Record::*number = nullptr;
    std::uint8_t Record::*byte = nullptr;
    std::string Record::*text = nullptr;
    bool skipEmptyText = true;
};

namespace {

// The keys of a format record, "Ans" or "Var" in front.
enum class FormatField { ZeroPrecision, Precision, Format, DecPoint, LeadSign, AngleType };

struct SetupKey {
    const char *key;
    bool answer;  // the answer record, else the variable record
    FormatField field;
};

const SetupKey kSetupKeys[] = {
    {"AnsZeroPrecision", true, FormatField::ZeroPrecision},
    {"VarZeroPrecision", false, FormatField::ZeroPrecision},
    {"AnsPrecision", true, FormatField::Precision},
    {"VarPrecision", false, FormatField::Precision},
    {"AnsFormat", true, FormatField::Format},
    {"VarFormat", false, FormatField::Format},
    {"AnsDecPoint", true, FormatField::DecPoint},
    {"VarDecPoint", false, FormatField::DecPoint},
    {"AnsLeadSign", true, FormatField::LeadSign},
    {"VarLeadSign", false, FormatField::LeadSign},
    {"AngleType", true, FormatField::AngleType},
};

using FontKey = DocumentFieldKey<DocumentFont>;
const FontKey kFontKeys[] = {
    {"FaceName", nullptr, nullptr, &DocumentFont::FaceName, false},
    {"Height", &DocumentFont::Height},
    {"Width", &DocumentFont::Width},
    {"Escapement", &DocumentFont::Escapement},
    {"Orientation", &DocumentFont::Orientation},
    {"Weight", &DocumentFont::Weight},
    {"Italic", nullptr, &DocumentFont::Italic},
    {"Underline", nullptr, &DocumentFont::Underline},
    {"StrikeOut", nullptr, &DocumentFont::StrikeOut},
    {"CharSet", nullptr, &DocumentFont::CharSet},
    {"OutPrecision", nullptr, &DocumentFont::OutPrecision},
    {"ClipPrecision", nullptr, &DocumentFont::ClipPrecision},
    {"Quality", nullptr, &DocumentFont::Quality},
    {"PitchAndFamily", nullptr, &DocumentFont::PitchAndFamily},
};

using IntegrationKey = DocumentFieldKey<IntegrationParameters>;
const IntegrationKey kIntegrationKeys[] = {
    {"IntType", &IntegrationParameters::IntType},
    {"IntPrecision", &IntegrationParameters::IntPrecision},
    {"IntAccuracy", &IntegrationParameters::IntAccuracy},
    {"IntFunc", nullptr, nullptr, &IntegrationParameters::IntFunc},
    {"IntXParam", nullptr, nullptr, &IntegrationParameters::IntXParam},
    {"IntXLoLimit", nullptr, nullptr, &IntegrationParameters::IntXLoLimit},
    {"IntXHiLimit", nullptr, nullptr, &IntegrationParameters::IntXHiLimit},
    {"IntYParam", nullptr, nullptr, &IntegrationParameters::IntYParam},
    {"IntYLoLimit", nullptr, nullptr, &IntegrationParameters::IntYLoLimit},
    {"IntYHiLimit", nullptr, nullptr, &IntegrationParameters::IntYHiLimit},
    {"IntZParam", nullptr, nullptr, &IntegrationParameters::IntZParam},
    {"IntZLoLimit", nullptr, nullptr, &IntegrationParameters::IntZLoLimit},
    {"IntZHiLimit", nullptr, nullptr, &IntegrationParameters::IntZHiLimit},
};

using DifferentiationKey = DocumentFieldKey<DifferentiationParameters>;
const DifferentiationKey kDifferentiationKeys[] = {
    {"DiffFunc", nullptr, nullptr, &DifferentiationParameters::DiffFunc},
    {"DiffVar", nullptr, nullptr, &DifferentiationParameters::DiffVar},
    {"DiffXo", nullptr, nullptr, &DifferentiationParameters::DiffXo},
    {"DiffXn", nullptr, nullptr, &DifferentiationParameters::DiffXn},
    {"DiffIn", nullptr, nullptr, &DifferentiationParameters::DiffIn},
    {"DiffPrecision", &DifferentiationParameters::DiffPrecision},
    {"DiffDispFunc", &DifferentiationParameters::DiffDispFunc},
    {"DiffDispFirstDir", &DifferentiationParameters::DiffDispFirstDir},
    {"DiffDispSecondDir", &DifferentiationParameters::DiffDispSecondDir},
    {"DiffDispThirdDir", &DifferentiationParameters::DiffDispThirdDir},
};

std::string zero_precision_text(float threshold) {
    char text[32];
    std::snprintf(text, sizeof text, "%1.1e", static_cast<double>(threshold));
    return text;
}

}  // namespace

// Writes the keys of a record in table order, stopping at the first failed write.
template <class Record>
bool DocumentFile::WriteFields(const Record &record, std::span<const DocumentFieldKey<Record>> keys,
                               const char *section) {
    for (const DocumentFieldKey<Record> &row : keys) {
        std::string value;
        if (row.number != nullptr) {
            value = std::to_string(record.*row.number);
        } else if (row.byte != nullptr) {
            value = std::to_string(record.*row.byte);
        } else {
            value = record.*row.text;
            if (value.empty() && row.skipEmptyText) continue;
        }
        if (!Put(section, row.key, value)) return false;
    }
    return true;
}

// Reads the keys of a record; a missing key gives the value of a new record.
template <class Record>
void DocumentFile::ReadFields(Record &record, std::span<const DocumentFieldKey<Record>> keys,
                              const char *section) const {
    const Record defaults{};
    for (const DocumentFieldKey<Record> &row : keys) {
        if (row.number != nullptr)
            record.*row.number =
                held_in_range(row.key, GetInt(section, row.key, defaults.*row.number));
        else if (row.byte != nullptr)
            record.*row.byte =
                static_cast<std::uint8_t>(GetInt(section, row.key, defaults.*row.byte));
        else
            record.*row.text = GetString(section, row.key, (defaults.*row.text).c_str());
    }
}

bool DocumentFile::WriteSettings() {
    for (const SetupKey &row : kSetupKeys) {
        const PrecformType &format = row.answer ? *parser.answer_format : *parser.variable_format;
        std::string value;
        switch (row.field) {
            case FormatField::ZeroPrecision:
                value = zero_precision_text(format.zero_precision);
                break;
            case FormatField::Precision:
                value = std::to_string(format.precision);
                break;
            case FormatField::Format:
                value = std::to_string(format.format);
                break;
            case FormatField::DecPoint:
                value = format.show_decimal_point ? "1" : "0";
                break;
            case FormatField::LeadSign:
                value = format.show_lead_sign ? "1" : "0";
                break;
            case FormatField::AngleType:
                value = std::to_string(parser.angle_mode);
                break;
        }
        if (!Put(kSetupSection, row.key, value)) return false;
    }
    return true;
}

bool DocumentFile::ReadSettings() {
    Progress("Reading And Setting Up Predefined Configuration", 0);
    for (const SetupKey &row : kSetupKeys) {
        PrecformType &format = row.answer ? *parser.answer_format : *parser.variable_format;
        switch (row.field) {
            case FormatField::ZeroPrecision:
                format.zero_precision = zero_precision_from_text(
                    GetString(kSetupSection, row.key, kMissingZeroPrecision));
                break;
            case FormatField::Precision:
                format.precision = held_in_range(row.key, GetInt(kSetupSection, row.key, 14));
                break;
            case FormatField::Format:
                format.format = held_in_range(row.key, GetInt(kSetupSection, row.key, 0));
                break;
            case FormatField::DecPoint:
                format.show_decimal_point = GetInt(kSetupSection, row.key, 0) != 0;
                break;
            case FormatField::LeadSign:
                format.show_lead_sign = GetInt(kSetupSection, row.key, 0) != 0;
                break;
            case FormatField::AngleType:
                parser.angle_mode = held_in_range(row.key, GetInt(kSetupSection, row.key, 0));
                break;
        }
    }
    return true;
}

bool DocumentFile::WriteFont() {
    return WriteFields<DocumentFont>(content.font, kFontKeys, kFontSection) &&
           Put(kFontSection, "Color", rgb_text(content.font.Color));
}

bool DocumentFile::ReadFont() {
    ReadFields<DocumentFont>(content.font, kFontKeys, kFontSection);
    snapshot->Color(kFontSection, "Color", TColor::Black, content.font.Color);
    return true;
}

bool DocumentFile::WriteCalculusParameters() {
    return WriteFields<IntegrationParameters>(content.integration, kIntegrationKeys,
                                              kIntegrationSection) &&
           WriteFields<DifferentiationParameters>(content.differentiation, kDifferentiationKeys,
                                                  kDifferentiationSection);
}

bool DocumentFile::ReadCalculusParameters() {
    Progress("Reading The Integration Parameters", 0);
    ReadFields<IntegrationParameters>(content.integration, kIntegrationKeys, kIntegrationSection);
    ReadFields<DifferentiationParameters>(content.differentiation, kDifferentiationKeys,
                                          kDifferentiationSection);
    return true;
}

}  // namespace quindar
