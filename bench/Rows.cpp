#include "bench/Rows.h"

#include <array>
#include <cstdint>

#include "calendar/Appointments.h"
#include "partners/PartnerTable.h"
#include "receivables/OpenDocumentRecords.h"
#include "stock/ArticleRecords.h"
#include "stock/StockRecords.h"
#include "store/Dates.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"

namespace kontorwerk::bench {
namespace {

constexpr std::array kFirstNames = {"Hans"_t,   "Jürgen"_t, "Sabine"_t, "Ursula"_t, "Björn"_t,
                                    "Renate"_t, "Käthe"_t,  "Stefan"_t, "Monika"_t, "Günther"_t};
constexpr std::array kSurnames = {"Müller"_t, "Schmidt"_t, "Schröder"_t, "Weiß"_t,     "Königsberger"_t,
                                  "Huber"_t,  "Lindner"_t, "Böhm"_t,     "Sommer"_t,   "Großmann"_t,
                                  "Vogel"_t,  "Krüger"_t,  "Jäger"_t,    "Hartmann"_t, "Bauer"_t};
constexpr std::array kTrades = {
    "Elektrotechnik"_t, "Sanitär und Heizung"_t, "Bürobedarf"_t,    "Malerbetrieb"_t, "Autohaus"_t,
    "Bäckerei"_t,       "Tischlerei"_t,          "Steuerberatung"_t};
constexpr std::array kStreets = {"Hauptstraße"_t,  "Bahnhofstraße"_t, "Lindenweg"_t,       "Am Mühlbach"_t,
                                 "Gartenstraße"_t, "Schillerplatz"_t, "Industriestraße"_t, "Äußere Ringstraße"_t};
constexpr std::array kTowns = {"Rosenheim"_t, "München"_t, "Tübingen"_t, "Köln"_t,     "Nürnberg"_t,    "Villingen"_t,
                               "Osnabrück"_t, "Kiel"_t,    "Weilheim"_t, "Augsburg"_t, "Saarbrücken"_t, "Celle"_t};
constexpr std::array kGoods = {"Netzwerkkabel"_t,     "Drucker"_t,      "Festplatte"_t,      "Bürostuhl"_t,
                               "Schreibtischlampe"_t, "Tastatur"_t,     "Bildschirm 27\""_t, "Akkuschrauber"_t,
                               "Dübelsortiment"_t,    "Toner schwarz"_t};
constexpr std::array kMakers = {"Nordwerk"_t, "Rheintal Geräte"_t, "Hellmann & Co."_t, "Südkabel"_t};
constexpr std::array kCategories = {"HDD"_t, "KAB"_t, "DRU"_t, "BÜR"_t, "WKZ"_t, "MON"_t};
constexpr std::array kStatuses = {"offen"_t, "in Arbeit"_t, "erledigt"_t, "wartend"_t, "abgebrochen"_t};

constexpr long kRowsPerTown = 100;
constexpr long kPlaceOfTown = 37;
constexpr int kFirstStockNumber = 1001;

// A number that looks drawn by lot, always the same for the same row and purpose.
std::uint64_t Mixed(long index, unsigned purpose) {
  std::uint64_t x = static_cast<std::uint64_t>(index) * 0x9E3779B97F4A7C15U + purpose * 0xBF58476D1CE4E5B9U;
  x = (x ^ (x >> 30U)) * 0xBF58476D1CE4E5B9U;
  x = (x ^ (x >> 27U)) * 0x94D049BB133111EBU;
  return x ^ (x >> 31U);
}

template <typename List>
std::string_view Pick(const List& list, long index, unsigned purpose) {
  return list[Mixed(index, purpose) % list.size()];
}

std::string Digits(long index, unsigned purpose, int length) {
  std::uint64_t bound = 1;
  for (int i = 0; i < length; ++i) bound *= 10;
  return PadZeros(std::to_string(Mixed(index, purpose) % bound), length);
}

std::string Price(long index, unsigned purpose, int digits) {
  return Concat("1", Digits(index, purpose, digits - 1), ",", Digits(index, purpose + 1, 2));
}

bool IsRare(long index, long rows) { return index == rows * 2 / 3; }

std::string_view Town(long index) {
  return index % kRowsPerTown == kPlaceOfTown ? "Bad Tölz"_t : Pick(kTowns, index, 5);
}

std::string Street(long index) { return Concat(Pick(kStreets, index, 3), " ", std::to_string(1 + index % 140)); }

std::string PersonName(long index) { return Concat(Pick(kFirstNames, index, 1), " ", Pick(kSurnames, index, 2)); }

std::string PartnerName(long index, long rows) {
  if (IsRare(index, rows)) return Concat("Orgelbau ", kRareText, " e.K.");
  if (index % 3 == 0) return PersonName(index);
  return Concat(Pick(kTrades, index, 4), " ", Pick(kSurnames, index, 2), " GmbH");
}

std::string Mail(long index) { return Concat("info", std::to_string(index), "@firma-", Digits(index, 6, 4), ".de"); }

// A day of the last `span` days before today.
std::string DayBefore(long index, unsigned purpose, long span) {
  return DateText(
      AddDays({2026, 11, 16}, -static_cast<long>(Mixed(index, purpose) % static_cast<std::uint64_t>(span))));
}

Partner MakePartner(long index, long rows, const PartnerKind& kind) {
  Partner partner;
  partner.texts.resize(static_cast<std::size_t>(kind.BoxCount()));
  const auto set = [&partner](int column, std::string_view text) {
    partner.texts[static_cast<std::size_t>(column - 1)] = text;
  };
  set(partner::kNumber, PadZeros(std::to_string(kind.firstNumber + index), 5));
  set(partner::kName, PartnerName(index, rows));
  set(partner::kStraße, Street(index));
  set(partner::kPLZ, Digits(index, 7, 5));
  set(partner::kWohnort, Town(index));
  set(partner::kVorwahl1, Concat("0", Digits(index, 8, 4)));
  set(partner::kTel, Digits(index, 9, 6));
  set(partner::kVorwahl3, "0171");
  set(partner::kMobil, Digits(index, 10, 7));
  set(partner::kEmail, Mail(index));
  if (index % 3 != 0) {
    set(partner::kHomepage, Concat("www.firma-", Digits(index, 6, 4), ".de"));
    set(partner::ContactName(1), PersonName(index + 1));
    set(partner::ContactDirectLine(1), Digits(index, 11, 3));
    set(partner::ContactEmail(1), Concat("einkauf", std::to_string(index), "@firma-", Digits(index, 6, 4), ".de"));
    set(partner::ContactName(2), PersonName(index + 2));
    set(partner::ContactDirectLine(2), Digits(index, 13, 3));
  }
  set(partner::kVorwahl2, Concat("0", Digits(index, 8, 4)));
  set(partner::kFax, Digits(index, 14, 6));
  if (index % 2 == 0) set(partner::kFreitext, "Liefert nur vormittags an\r\nRückruf erbeten, Skonto 2 % vereinbart"_t);
  set(partner::kAnrede, index % 3 == 0 ? "Herr" : "Firma");
  partner.Erfassdatum = DayBefore(index, 12, 4000);
  return partner;
}

std::string ArticleName(long index, long rows) {
  if (IsRare(index, rows)) return Concat("Stimmgerät "_t, kRareText);
  return Concat(Pick(kGoods, index, 20), " Typ ", Digits(index, 21, 4));
}

Article MakeArticle(long index, long rows) {
  Article article;
  article.number = ArticleNumber(index);
  article.name = ArticleName(index, rows);
  article.description[0] = Concat(article.name, ", Ausführung "_t, Digits(index, 22, 2));
  article.description[1] = "inkl. Anschlusskabel und deutschem Handbuch";
  if (index % kRowsPerTown == kPlaceOfTown) article.description[2] = "Lager Bad Tölz"_t;
  article.stockKept = true;
  article.singleItem = index % 3 == 0;
  article.multipleItem = !article.singleItem;
  article.unit = "Stück"_t;
  article.manufacturer = Pick(kMakers, index, 23);
  article.suppliers[0] = Concat("Großhandel "_t, Pick(kSurnames, index, 24));
  article.orderNumbers[0] = Digits(index, 25, 8);
  article.purchasePrices[0] = Price(index, 26, 3);
  article.netPrice = Price(index, 28, 3);
  article.grossPrice = Price(index, 30, 3);
  article.entryDate = DayBefore(index, 32, 3000);
  article.ean = Concat("40", Digits(index, 33, 11));
  return article;
}

std::string Amount(long index) { return Price(index, 50, 4); }

std::string KindPrefix(long index) { return index % 5 == 0 ? "AB" : index % 5 == 1 ? "LS" : "RG"; }

// The line as the payment screen leaves it: 62 fields, a first payment and a first reminder.
std::string WithPayment(std::string_view line, long index) {
  const std::vector<std::string_view> old = RecordFields(line);
  std::vector<std::string> fields(old.begin(), old.end());
  fields.resize(kOpenMahngebühr);
  fields[kOpenSumme - 1] = "50,00";
  fields[kOpenFirstPayment - 1] = DayBefore(index, 82, 60);
  fields[kOpenFirstPayment + 1] = "50,00";
  fields[kOpenMD1 - 1] = DayBefore(index, 83, 90);
  return RecordLine(fields);
}

std::string DocumentNumber(long index, long rows) {
  return Concat(PadZeros(std::to_string(1 + (rows - index) % 9000), 4), "/2026");
}

}  // namespace

std::string CustomerNumber(long index) { return PadZeros(std::to_string(CustomerKind().firstNumber + index), 5); }

// Categories change every 90,000 articles at the latest, since a number has five digits.
std::string ArticleNumber(long index) {
  const auto categories = static_cast<long>(kCategories.size());
  return Concat(kCategories[static_cast<std::size_t>(index % categories)],
                PadZeros(std::to_string(index / categories + 1), kArticleDigits));
}

std::string StockNumber(long index) { return Concat("#", PadZeros(std::to_string(kFirstStockNumber + index), 5)); }

std::string CustomerRow(long index, long rows) { return PartnerLine(MakePartner(index, rows, CustomerKind())); }

std::string SupplierRow(long index, long rows) { return PartnerLine(MakePartner(index, rows, SupplierKind())); }

std::string ArticleRow(long index, long rows) { return ArticleLine(MakeArticle(index, rows)); }

std::string StockRow(long index, long rows) {
  StockRecord record(StockRowOfArticle("", MakeArticle(index, rows)));
  record[kStockLagerNr] = StockNumber(index);
  record[kStockLagerbestand] = std::to_string(Mixed(index, 40) % 60);
  record[kStockMindestMenge] = index % 2 == 0 ? "12" : "";
  record[kStockSollMenge] = index % 2 == 0 ? "30" : "";
  record[kStockLagerOrt] = "Halle 2";
  record[kStockLagerplatz] = Concat("Regal ", Digits(index, 41, 2));
  if (index % 3 == 0) record[kStockSerNr] = Concat("SN", Digits(index, 42, 10));
  record[kStockAktEK] = Price(index, 43, 3);
  record[kStockStatus] = Concat(kStatusReceipt, DayBefore(index, 45, 700));
  return record.Row();
}

std::string SinglePieceRow(long index) {
  constexpr long kPiecesOfAnArticle = 4;
  StockRecord record(StockRow(index, 0));
  record[kStockArtNr] = ArticleNumber(index / kPiecesOfAnArticle);
  record[kStockLagerbestand] = "1";
  record[kStockMindestMenge] = "10";
  record[kStockEinzel] = "1";
  return record.Row();
}

std::string OrderRow(long index, long rows) {
  const std::string date = DayBefore(index, 60, 900);
  return RecordLine({PadZeros(std::to_string(1000 + rows - index), 7),
                     CustomerNumber(index),
                     PartnerName(index, rows),
                     "",
                     Street(index),
                     Digits(index, 7, 5),
                     Town(index),
                     "08031",
                     Digits(index, 9, 6),
                     "",
                     "",
                     "0171",
                     Digits(index, 10, 7),
                     Mail(index),
                     "",
                     "Reparatur",
                     Concat(Pick(kGoods, index, 61), " defekt"),
                     "Gerät startet nicht*__*Kostenvoranschlag gewünscht"_t,
                     "",
                     "",
                     "",
                     Concat("R", Digits(index, 62, 3)),
                     "",
                     Pick(kStatuses, index, 63),
                     date,
                     "Huber",
                     date,
                     "Huber",
                     "",
                     "Herr"});
}

std::string AppointmentRowOf(long index) {
  Appointment appointment;
  appointment.date = DayBefore(index, 70, 2000);
  const std::string hour = PadZeros(std::to_string(7 + index % 11), 2);
  appointment.begin = Concat(hour, ":00");
  appointment.end = Concat(hour, ":45");
  appointment.subject = Concat("Besuch bei ", PersonName(index), ", ", Town(index));
  appointment.notes = "Unterlagen mitnehmen";
  appointment.colour = "16777215";
  return AppointmentRow(appointment);
}

std::string OpenDocumentRow(long index) {
  const long customer = index / 3;
  OpenDocumentRecord record;
  record.Belegart = KindPrefix(index);
  record.number = DocumentNumber(index, 9000);
  record.Datum = DayBefore(index, 80, 120);
  record.KDNr = CustomerNumber(customer);
  record.KDName = PartnerName(customer, 0);
  record.Straße = Street(customer);
  record.PLZ = Digits(customer, 7, 5);
  record.Wohnort = Town(customer);
  record.kindWord = NamesOf(KindOfPrefix(record.Belegart).value()).word;
  record.Gesamt = Amount(index);
  record.MWST = Price(index, 81, 3);
  record.MWST2 = "0,00";
  record.Betrag = Amount(index);
  const std::string line = OpenDocumentLine(record);
  return index % 4 == 3 ? WithPayment(line, index) : line;
}

DocumentRecord MakeDocument(DocumentKind kind, long index, long rows) {
  const long customer = index / 5;
  DocumentRecord record;
  record.number = DocumentNumber(index, rows);
  record.Datum = DayBefore(index, 90, 300);
  record.KDNr = CustomerNumber(customer);
  record.KDName = PartnerName(customer, rows);
  record.Straße = Street(customer);
  record.PLZ = Digits(customer, 7, 5);
  record.Wohnort = Town(customer);
  record.UnsereZeichen = "Hu";
  record.kindWord = NamesOf(kind).word;
  for (long position = 0; position < 3 + index % 4; ++position) record.rows.push_back(MakePosition(index + position));
  record.Gesamt = Amount(index);
  record.MWST = Price(index, 92, 3);
  record.MWST2 = "0,00";
  record.Betrag = Amount(index + 1);
  record.Zahlungsweise = "Zahlbar innerhalb von 14 Tagen ohne Abzug";
  record.Text1 = "Vielen Dank für Ihren Auftrag!"_t;
  record.LieferscheinNr = record.number;
  record.Anrede = "Herr";
  return record;
}

PositionRow MakePosition(long index) {
  PositionRow row;
  row.LGNr = StockNumber(index);
  row.ArtNr = ArticleNumber(index);
  row.S = std::to_string(1 + index % 4);
  row.B = ArticleName(index, 0);
  row.E = Price(index, 28, 3);
  row.G = Price(index, 91, 4);
  row.secondRate = index % 7 == 0;
  return row;
}

std::string DocumentRow(DocumentKind kind, long index, long rows) {
  return DocumentLine(MakeDocument(kind, index, rows), kind);
}

std::string DraftRow(long index) {
  return Concat(index % 2 == 0 ? "EF" : "AB", PadZeros(std::to_string(index % 10000), 4), "/2026=vom ", kToday, " ",
                PersonName(index), ", ", Digits(index, 7, 5), " ", Town(index));
}

}  // namespace kontorwerk::bench
