#include "disc/runtime_error.h"

#include <new>
#include <stdexcept>

namespace kalco {

std::string_view run_time_error_text(int number) {
    switch (number) {
        case error::invalid_call: return "Chiamata di routine o argomento non validi";
        case error::overflow: return "Overflow";
        case error::out_of_memory: return "Memoria esaurita";
        case error::type_mismatch: return "Tipo non corrispondente";
        case error::bad_file_name: return "Nome o numero di file non valido";
        case error::file_not_found: return "Impossibile trovare il file";
        case error::device_io: return "Errore di I/O della periferica";
        case error::disk_full: return "Disco pieno";
        case error::past_end_of_file: return "Input dopo la fine del file";
        case error::permission_denied: return "Autorizzazione negata";
        case error::path_access: return "Errore di accesso al percorso/file";
        case error::resource_not_found: return "Risorsa non trovata";
        case error::no_such_element: return "Elemento della matrice di controlli inesistente";
        case error::invalid_property: return "Valore di propriet\xE0 non valido";
        default: return "";
    }
}

const char* RuntimeError::what() const noexcept {
    return run_time_error_text(number_).data();
}

int error_number(const std::exception& failure) {
    if (const auto* const error = dynamic_cast<const RuntimeError*>(&failure)) return error->number();
    const bool memory = dynamic_cast<const std::bad_alloc*>(&failure) != nullptr ||
                        dynamic_cast<const std::length_error*>(&failure) != nullptr;
    return memory ? error::out_of_memory : error::invalid_call;
}

}  // namespace kalco
