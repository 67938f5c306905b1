#include "disc/runtime_error.h"

#include <gtest/gtest.h>

#include <map>
#include <new>
#include <stdexcept>
#include <string>

namespace kalco {
namespace {

TEST(RunTimeErrors, HaveTheirItalianTexts) {
    const std::map<int, std::string> texts{
        {5, "Chiamata di routine o argomento non validi"},
        {6, "Overflow"},
        {7, "Memoria esaurita"},
        {13, "Tipo non corrispondente"},
        {52, "Nome o numero di file non valido"},
        {53, "Impossibile trovare il file"},
        {57, "Errore di I/O della periferica"},
        {61, "Disco pieno"},
        {62, "Input dopo la fine del file"},
        {70, "Autorizzazione negata"},
        {75, "Errore di accesso al percorso/file"},
        {326, "Risorsa non trovata"},
        {340, "Elemento della matrice di controlli inesistente"},
        {380, "Valore di propriet\xE0 non valido"},
    };
    for (int number = 0; number < 400; ++number) {
        const auto known = texts.find(number);
        EXPECT_EQ(run_time_error_text(number), known == texts.end() ? "" : known->second) << number;
    }
}

TEST(RunTimeErrors, CarryNumberAndText) {
    const RuntimeError failure(error::permission_denied);
    EXPECT_EQ(failure.number(), 70);
    EXPECT_EQ(failure.text(), "Autorizzazione negata");
    EXPECT_STREQ(failure.what(), "Autorizzazione negata");
}

TEST(RunTimeErrors, TellNothingOfAnUnknownNumber) {
    const RuntimeError failure(8);
    EXPECT_EQ(failure.text(), "");
    EXPECT_STREQ(failure.what(), "");
}

TEST(RunTimeErrors, HaveANumberForEveryFailure) {
    EXPECT_EQ(error_number(RuntimeError(error::disk_full)), 61);
    EXPECT_EQ(error_number(std::bad_alloc()), 7);
    EXPECT_EQ(error_number(std::bad_array_new_length()), 7);
    EXPECT_EQ(error_number(std::length_error("x")), 7);
    EXPECT_EQ(error_number(std::out_of_range("x")), 5);
    EXPECT_EQ(error_number(std::runtime_error("x")), 5);
}

}  // namespace
}  // namespace kalco
