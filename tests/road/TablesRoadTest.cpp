// What printing leaves in the tables: the same bytes whether papers are made or not.
#include <gtest/gtest.h>

#include <map>

#include "tests/road/PaperRoad.h"

namespace kontorwerk::testing_support {
namespace {

constexpr std::string_view kTables[] = {"Rechnungendb", "Lieferscheinedb", "Angebotedb", "Gutschriftendb",
                                        "Kundendb",     "LagerArtikeldb",  "Artikeldb",  "offeneBelegedb"};

constexpr std::string_view kSteps = R"(set ABRGForm.LGNr(0) "#01001"
key ABRGForm.LGNr(0) Ctrl+Enter
set ABRGForm.S(0) "3"
set ABRGForm.ArtNr(1) "DIE00001"
key ABRGForm.ArtNr(1) Ctrl+Enter
set ABRGForm.S(1) "2,5"
)";

std::map<std::string, std::string> Tables(RoadMode mode) {
  RoadRun run;
  PaperRoad::Shared().Play(run, std::string(kSteps) + PrintBoth("PDF-Datei", 1, 0) + "expect-boxes 0\n",
                           {.mode = mode});
  std::map<std::string, std::string> tables;
  for (const std::string_view name : kTables) {
    const std::string file = std::string(name) + ".dbf";
    tables[file] = run.File("daten/" + file);
  }
  return tables;
}

TEST_F(PaperTest, TheTablesAreTheSameToTheByteWithAndWithoutPaper) {
  std::map<std::string, std::string> tables = Tables(RoadMode::WindowsAndPaper);
  EXPECT_EQ(tables, Tables(RoadMode::HeadlessRecord));
  const std::string head = "'16.11.2026','00100','Müller & Söhne','','Hauptstr. 1','78000','Musterstadt','','',";
  const std::string rows =
      "'Falsch','Wahr','#01001','BUC00001','3','Kochbuch','36,80','110,40','1',"
      "'','DIE00001','2,5','Aufmaß vor Ort','68,90','172,25','0','',";
  const std::string foot = "'282,65','32,73','7,73','323,11','Zahlbar sofort.','','',";
  const auto seed = [](const std::string& number) {
    return "'short','" + number + "/2026','02.01.2026 ','','Datenbank Nummernupdate - Kontorwerk-System\r\n";
  };
  EXPECT_EQ(tables["Rechnungendb.dbf"],
            "'2','0108/2026'," + head + "'Rechnung'," + rows + foot + "'0106/2026','Firma\r\n" + seed("0107"));
  EXPECT_EQ(tables["Lieferscheinedb.dbf"],
            "'2','0106/2026'," + head + "'Lieferschein'," + rows + foot + "'Firma\r\n" + seed("0105"));
  EXPECT_EQ(tables["Angebotedb.dbf"], seed("0103"));
  EXPECT_EQ(tables["Gutschriftendb.dbf"], seed("0100"));
  EXPECT_EQ(tables["offeneBelegedb.dbf"],
            "'RG','0108/2026'," + head + "'Rechnung','Falsch','Wahr','282,65','32,73','7,73','323,11','323,11\r\n\r\n");
  EXPECT_EQ(
      tables["LagerArtikeldb.dbf"],
      "'#01001','BUC00001','Kochbuch','32','','','','','4000000000017','','','Kochbuch','','','','Stück','','','','',"
      "'','','','','','','','','','','30,00','36,80','39,38','1','0','Warenausgang am 16.11.2026 - Menge: 3\r\n"
      "'#01002','LIC00001','Leuchte','10','','','','','4000000000024','','','Leuchte weiß','mit Netzteil','','',"
      "'Stück','','','','','','','','','','','','','','','90,00','174,90','208,13','0','0','Wareneingang am 02.02.2026"
      "\r\n\r\n");
}

}  // namespace
}  // namespace kontorwerk::testing_support
