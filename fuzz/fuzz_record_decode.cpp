// Any twelve bytes as a record: what is stored comes back, the decoder ends, and what it shows keeps to the least
// values of its fields.

#include "disc/codec/decimal.h"
#include "disc/codec/hextext.h"
#include "disc/player_record.h"
#include "fuzz/input.h"

using namespace kalco;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    std::string record;
    for (int i = 0; i < 12; ++i) record += static_cast<char>(bytes.next());
    const auto groups = groups_of_entry(hex_line(record));
    const Words words{word_of_group(groups[0]), word_of_group(groups[1]), word_of_group(groups[2])};
    std::string digits;
    for (const std::int64_t word : words) {
        if (word != -1) digits += file_order_digits(word);
    }
    fuzz::require(digits.size() < 24 || digits == hex_digits(record), "the digits of the words are the record's");
    fuzz::require(words == words_of_record(record), "the words are the same by both ways");
    fuzz::require(record_of_words(pack_player(unpack_player(words))) == record, "what is stored comes back");

    const DecodedPlayer player = decode_player(words);
    fuzz::require(number_of(player.number.value_or("0")) >= 1, "numbers begin at 1");
    fuzz::require(number_of(player.height.value_or("0")) >= lowest_height, "heights begin at 155");
    fuzz::require(player.stopped == !player.foot.has_value(), "the foot is what comes last");
    for (const auto& skill : player.skills) {
        fuzz::require(player.stopped || number_of(*skill) >= lowest_skill, "skills begin at 12");
    }
    return 0;
}
