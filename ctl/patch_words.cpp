#include "ctl/patch_words.h"

#include <algorithm>

#include "ctl/table_json.h"
#include "disc/codec/latin1.h"
#include "disc/codec/utf8.h"
#include "work/sheets/sheets.h"

namespace kalco::ctl {
namespace {

std::string or_quotes(const std::string& cell) {
    return cell.empty() ? std::string(empty_text_cell) : cell;
}

std::string conflict_line(const FieldChange& difference) {
    return difference.id() + ' ' + difference.column->name + ": the patch expects " + or_quotes(difference.old_cell()) +
           ", the image has " + or_quotes(difference.new_cell());
}

std::string conflict_line(const ByteRun& run) {
    return "position " + std::to_string(run.position) + ": the patch expects " + std::to_string(run.bytes) +
           " other bytes";
}

const char* kind_of_image(const PpfPatch& patch) {
    return patch.image() == PpfImage::bin ? "BIN" : "GI";
}

struct Range {
    std::uint64_t first;
    std::uint64_t last;
};

/// The 1-based positions of the first and the last byte.
Range range_of(const PpfPatch& patch) {
    Range range{patch.records().front().offset + 1, patch.records().front().end()};
    for (const PpfRecord& record : patch.records()) {
        range.first = std::min(range.first, record.offset + 1);
        range.last = std::max(range.last, record.end());
    }
    return range;
}

/// UTF-8 with a blank for every control character.
std::string without_controls(std::string_view utf8) {
    std::string clean;
    while (!utf8.empty()) {
        const Utf8Step step = first_character(utf8);
        const bool control = step.character < 0x20 || (step.character >= 0x7F && step.character < 0xA0);
        clean += control ? " " : utf8.substr(0, step.bytes);
        utf8.remove_prefix(step.bytes);
    }
    return clean;
}

/// Bytes that others have written: UTF-8 or, where they are none, Latin-1, without control characters.
std::string text_of_others(std::string_view text) {
    if (!broken_utf8(text)) return without_controls(text);
    std::string clean(text);
    std::replace_if(
        clean.begin(), clean.end(),
        [](char byte) {
            const auto code = static_cast<unsigned char>(byte);
            return code < 0x20 || (code >= 0x7F && code < 0xA0);
        },
        ' ');
    return utf8_of_latin1(clean);
}

}  // namespace

PatchWords::PatchWords(const Image& before) : before_(read_sheets(before)) {}

void PatchWords::see(const Image& after) {
    meaning_ = meaning_of_changes(before_, after);
}

std::string PatchWords::lines() const {
    std::string text;
    for (const FieldChange& change : meaning_.fields) text += line_of(change) + '\n';
    for (const ByteRun& run : meaning_.others)
        text += "position " + std::to_string(run.position) + ": " + std::to_string(run.bytes) + " bytes\n";
    return text;
}

std::string PatchWords::json() const {
    std::string text;
    for (const FieldChange& change : meaning_.fields) text += json_of_change(change).dump() + '\n';
    for (const ByteRun& run : meaning_.others)
        text += Json{{"position", run.position}, {"bytes", run.bytes}}.dump() + '\n';
    return text;
}

std::vector<std::string> PatchWords::of_conflicts(const std::vector<PatchConflict>& conflicts) const {
    const PatchMeaning meaning = meaning_of_conflicts(before_, conflicts);
    std::vector<std::string> lines;
    for (const FieldChange& difference : meaning.fields) lines.push_back(conflict_line(difference));
    for (const ByteRun& run : meaning.others) lines.push_back(conflict_line(run));
    return lines;
}

std::string text_of_patch(const PpfPatch& patch) {
    const Range range = range_of(patch);
    std::string text = "kind: PPF " + std::to_string(patch.version()) + ".0";
    if (patch.version() == 3) text += std::string(", ") + kind_of_image(patch);
    text += "\ndescription: " + text_of_others(patch.description());
    text += std::string("\nblock check: ") + (patch.block() ? "yes" : "no");
    text += std::string("\nundo: ") + (patch.has_undo() ? "yes" : "no");
    text += "\nrecords: " + std::to_string(patch.records().size());
    text += "\nbytes: " + std::to_string(patch.bytes());
    text += "\npositions: " + std::to_string(range.first) + " to " + std::to_string(range.last) + '\n';
    if (patch.file_id()) text += "text at the end: " + text_of_others(*patch.file_id()) + '\n';
    return text;
}

std::string json_of_patch(const PpfPatch& patch) {
    const Range range = range_of(patch);
    const Json json{{"version", patch.version()},
                    {"description", text_of_others(patch.description())},
                    {"block_check", patch.block().has_value()},
                    {"undo", patch.has_undo()},
                    {"records", patch.records().size()},
                    {"bytes", patch.bytes()},
                    {"first", range.first},
                    {"last", range.last}};
    return json.dump() + '\n';
}

}  // namespace kalco::ctl
