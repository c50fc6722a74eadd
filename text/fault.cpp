#include "text/fault.h"

#include <algorithm>
#include <array>
#include <new>

#include "text/literal_1252.h"

namespace quenda {
namespace {

struct Description {
  int number;
  std::string_view text;
};

constexpr std::array kDescriptions = {
    Description{kFaultInvalidCall, u8"Ungültiger Prozeduraufruf oder ungültiges Argument"_de},
    Description{kFaultOverflow, u8"Überlauf"_de},
    Description{kFaultOutOfMemory, u8"Nicht genügend Speicher"_de},
    Description{kFaultIndexRange, u8"Index außerhalb des gültigen Bereichs"_de},
    Description{kFaultTypeMismatch, u8"Typen unverträglich"_de},
    Description{kFaultInternal, "Interner Fehler"},
    Description{kFaultFileNotFound, "Datei nicht gefunden"},
    Description{kFaultInputOutput, u8"E/A-Fehler bei Gerät"_de},
    Description{kFaultDiskFull, u8"Datenträger voll"_de},
    Description{kFaultPermissionDenied, "Zugriff verweigert"},
    Description{kFaultPathAccess, "Fehler beim Zugriff auf Pfad/Datei"},
    Description{kFaultPathNotFound, "Pfad nicht gefunden"},
    Description{kFaultNoControlElement, "Steuerelement-Datenfeldelement ist nicht vorhanden"},
    Description{kFaultInvalidProperty, u8"Ungültiger Eigenschaftswert"_de},
    Description{kFaultInvalidPropertyIndex, u8"Ungültiger Index für Eigenschaftenfeld"_de},
    Description{kFaultModelessWhileModal,
                u8"Ungebundenes Formular kann nicht angezeigt werden, solange ein gebundenes "
                u8"Formular angezeigt wird"_de},
    Description{kFaultNoComponent, u8"Objekterstellung durch ActiveX-Komponente nicht möglich"_de},
    Description{kFaultNoSuchMember, u8"Objekt unterstützt diese Eigenschaft oder Methode nicht"_de},
    Description{kFaultAutomation, "Automatisierungsfehler"},
};

}  // namespace

RuntimeFault::RuntimeFault(int number) : number_(number), description_(fault_description(number)) {}

RuntimeFault::RuntimeFault(int number, std::string_view addition)
    : number_(number), description_(fault_description(number)), addition_(addition) {}

void raise_fault(int number) { throw RuntimeFault(number); }

std::string_view fault_description(int number) {
  const auto* const found = std::find_if(kDescriptions.begin(), kDescriptions.end(),
                                         [&](const Description& d) { return d.number == number; });
  return found != kDescriptions.end()
             ? found->text
             : std::string_view("Anwendungs- oder objektdefinierter Fehler");
}

RuntimeFault current_fault() {
  try {
    throw;
  } catch (const RuntimeFault& fault) {
    return fault;
  } catch (const std::bad_alloc&) {
    return RuntimeFault(kFaultOutOfMemory);
  } catch (const std::exception&) {
    return RuntimeFault(kFaultInternal);
  }
}

}  // namespace quenda
