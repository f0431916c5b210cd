// By the English text alone: none of them means two things in the dialogs that the program opens.
#include "platform/qt/GermanTexts.h"

#include <QHash>

namespace kontorwerk {
namespace {

const QHash<QString, QString>& Texts() {
  static const QHash<QString, QString> texts = {
      {"&Undo", "&Rückgängig"},
      {"&Redo", "Wieder&herstellen"},
      {"Cu&t", "&Ausschneiden"},
      {"&Copy", "&Kopieren"},
      {"&Paste", "Ein&fügen"},
      {"Delete", "Löschen"},
      {"&Delete", "&Löschen"},
      {"Select All", "Alles auswählen"},
      {"&OK", "&OK"},
      {"OK", "OK"},
      {"&Cancel", "&Abbrechen"},
      {"Cancel", "Abbrechen"},
      {"&Yes", "&Ja"},
      {"&No", "&Nein"},
      {"&Open", "Ö&ffnen"},
      {"Open", "Öffnen"},
      {"&Save", "&Speichern"},
      {"Save", "Speichern"},
      {"Close", "Schließen"},
      {"&Choose", "&Auswählen"},
      {"Find Directory", "Ordner suchen"},
      {"Save As", "Speichern unter"},
      {"Look in:", "Suchen in:"},
      {"File &name:", "Datei&name:"},
      {"Files of type:", "Dateityp:"},
      {"Directory:", "Ordner:"},
      {"Directories", "Ordner"},
      {"All Files (*)", "Alle Dateien (*)"},
      {"All files (*)", "Alle Dateien (*)"},
      {"Back", "Zurück"},
      {"Forward", "Vor"},
      {"Parent Directory", "Übergeordneter Ordner"},
      {"Create New Folder", "Neuer Ordner"},
      {"&New Folder", "&Neuer Ordner"},
      {"New Folder", "Neuer Ordner"},
      {"&Rename", "&Umbenennen"},
      {"Show &hidden files", "&Versteckte Dateien anzeigen"},
      {"List View", "Liste"},
      {"Detail View", "Einzelheiten"},
      {"Name", "Name"},
      {"Size", "Größe"},
      {"Type", "Art"},
      {"Date Modified", "Geändert am"},
      {"Computer", "Rechner"},
      {"My Computer", "Rechner"},
      {"File", "Datei"},
      {"Folder", "Ordner"},
      {"Drive", "Laufwerk"},
      {"%1 already exists.\nDo you want to replace it?", "%1 ist schon vorhanden.\nSoll die Datei ersetzt werden?"},
      {"%1\nFile not found.\nPlease verify the correct file name was given.",
       "%1\nDie Datei wurde nicht gefunden.\nBitte prüfen Sie den Namen."},
      {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
       "%1\nDer Ordner wurde nicht gefunden.\nBitte prüfen Sie den Namen."},
      {"Select Color", "Farbe"},
      {"&Basic colors", "&Grundfarben"},
      {"&Custom colors", "&Eigene Farben"},
      {"&Add to Custom Colors", "Zu eigenen Farben &hinzufügen"},
      {"&Pick Screen Color", "Farbe vom &Bildschirm nehmen"},
      {"Hu&e:", "Farb&ton:"},
      {"&Sat:", "&Sättigung:"},
      {"&Val:", "&Helligkeit:"},
      {"&Red:", "&Rot:"},
      {"&Green:", "&Grün:"},
      {"Bl&ue:", "Bla&u:"},
      {"A&lpha channel:", "&Deckkraft:"},
      {"&HTML:", "&HTML:"},
  };
  return texts;
}

}  // namespace

QString GermanTexts::translate(const char*, const char* source, const char*, int) const {
  return Texts().value(QString::fromUtf8(source));
}

}  // namespace kontorwerk
