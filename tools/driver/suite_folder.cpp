#include "tools/driver/suite_folder.h"

#include <filesystem>
#include <fstream>

#include "text/literal_1252.h"
#include "text/text.h"
#include "tools/driver/processes.h"

namespace quenda {
namespace {

constexpr std::string_view kContacts =
    u8"Nachname;Vorname;Telefon;Mobil;Straße;Ort\r\n"
    u8"Berg;Anna;+49 30 23125 701;0171 3920056;Grüner Weg 4;12099 Berlin\r\n"
    u8"Özer;Cem;23125702;;Allee 33;10315 Berlin\r\n"
    u8"Kühn;Eva;0341/555-0144;;Markt 3;04109 Leipzig\r\n"_de;

constexpr std::string_view kBook =
    u8"Feuerwehr;112;0;0;0;0;;;[vcd()vcd]\r\n"
    u8"K.-H. Weiß;08999998345;0;0;3;0;München;;[vcd()vcd]\r\n"_de;

constexpr std::string_view kRemembered =
    u8"[Import]\r\nAsk=0\r\nLen=1\r\nNameFlip=0\r\nAdrFlip=0\r\n"
    u8"SelNames1=Vorname\r\nSelNames2=Nachname\r\n"
    u8"SelNumbers1=Telefon\r\nSelNumbers2=Mobil\r\n"
    u8"SelAddress11=Straße\r\nSelAddress12=Ort\r\n"
    u8"NameExt1=\r\nNameExt2=(mobil)\r\nAddChk11=1\r\n"_de;

}  // namespace

SuiteFolder::SuiteFolder() : own_(std::in_place), folder_(own_->path()) {
  for (const char* folder : {"data", "base", "log"}) {
    std::filesystem::create_directory(folder_ / folder);
  }
  std::filesystem::copy_file(QUENDA_IMPORT_EXE, folder_ / "Import.exe");
  write("Quendapaths.ini", "[Paths]\r\nProgramData=0\r\n");
  write("Quendaspec.ini", "[Debug]\r\nTraceMode=0\r\n");
  write("data\\Quenda.ini", "[General]\r\nmyVWL=49\r\nmyVWO=30\r\n");
  write("kontakte.csv", kContacts);
  set_book(kBook);
}

std::string SuiteFolder::read(const std::string& name) const { return content_of(path(name)); }

void SuiteFolder::write(const std::string& name, std::string_view bytes) const {
  std::ofstream out(path(name), std::ios::binary);
  out << bytes;
}

void SuiteFolder::remember_columns() const { write("data\\sett_import.ini", kRemembered); }

void SuiteFolder::speak(std::string_view language) const {
  for (const auto& file : std::filesystem::directory_iterator(QUENDA_SOURCE_DIR "/base")) {
    std::filesystem::copy_file(file.path(), folder_ / "base" / file.path().filename());
  }
  write("data\\Quenda.ini",
        concat("[General]\r\nmyVWL=49\r\nmyVWO=30\r\nLanguage=", language, "\r\n"));
}

}  // namespace quenda
