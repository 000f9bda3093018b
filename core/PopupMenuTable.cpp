#include "core/PopupMenuTable.h"

namespace dorvalin {
namespace {

constexpr PopupAction kNothing{};
constexpr PopupAction Panel(std::string_view operation, int argument = 0) {
  return {PopupAction::Kind::Panel, operation, argument};
}
constexpr PopupAction Dialog(std::string_view form) { return {PopupAction::Kind::Dialog, form}; }
constexpr PopupAction Task(std::string_view entry) { return {PopupAction::Kind::Task, entry}; }

// The two menus of quick text spell the access key of the paste entry differently; users know both.
constexpr PopupDesign kDesigns[] = {
    {"mnuTaskBar", "mnuTaskSidebar", u"&Seitenleiste aktivieren", Task("mnuTaskSidebar")},
    {"mnuTaskBar", "mnuTaskS3", u"", kNothing},
    {"mnuTaskBar", "mnuTaskSettings", u"&Einstellungen...", Task("mnuTaskSettings")},
    {"mnuTaskBar", "mnuTaskS1", u"", kNothing},
    {"mnuTaskBar", "mnuTaskHelp", u"&Hilfe zu Tolvo Dorvalin", Task("mnuTaskHelp")},
    {"mnuTaskBar", "mnuTaskAbout", u"&Info über Tolvo Dorvalin...", Task("mnuTaskAbout")},
    {"mnuTaskBar", "mnuTaskS2", u"", kNothing},
    {"mnuTaskBar", "mnuTaskQuit", u"Tolvo Dorvalin &beenden", Task("mnuTaskQuit")},

    {"mnuChars", "mnuCharsSet", u"&Alle Zeichen", Panel("CharsSet", 0)},
    {"mnuChars", "mnuCharsSet", u"&Zusatzzeichen", Panel("CharsSet", 1)},
    {"mnuChars", "mnuCharsSet", u"&Nicht-Buchstaben", Panel("CharsSet", 2)},
    {"mnuChars", "mnuCharsSet", u"Akzente/&Umlaute", Panel("CharsSet", 3)},
    {"mnuChars", "mnuCharsSet", u"&Mathematik und Währungen", Panel("CharsSet", 4)},
    {"mnuChars", "mnuCharsS1", u"", kNothing},
    {"mnuChars", "mnuCharsCopyWF", u"Mit &Schriftart eingeben", Panel("CopyWithFormat")},
    {"mnuSmileys", "mnuSmileysAll", u"&Alle Smileys", Panel("AllSmileys")},
    {"mnuCharPopup", "mnuCharPopupWFont", u"&Mit Schriftart eingeben", Panel("mnuSendWFormat")},
    {"mnuCharPopup", "mnuCharPopupWOFont", u"&Ohne Schriftart eingeben", Panel("mnuSendWOFormat")},
    {"mnuCharPopup", "mnuCharPopupHTML", u"Als &HTML-Code eingeben", Panel("mnuSendHTML")},
    {"mnuCharPopup", "mnuCharPopupS1", u"", kNothing},
    {"mnuCharPopup", "mnuCharPopupClipboard", u"In &Zwischenablage kopieren", Panel("mnuCopyToCB")},

    {"mnuColor", "mnuPalettes1", u"&Farbpaletten...", Dialog("frmPalettes")},
    {"mnuColorPalette", "mnuColorAddReduce1", u"&Palette erweitern/reduzieren...",
     Dialog("frmPaletteER")},
    {"mnuColorPalette", "mnuColorPaletteS1", u"", kNothing},
    {"mnuColorPalette", "mnuPalettes2", u"&Farbpaletten...", Dialog("frmPalettes")},
    {"mnuColorPopup", "mnuColorPopupClear", u"Farbfeld l&eeren", Panel("ClearColor")},
    {"mnuColorPopup", "mnuColorPopupRemove", u"Farbfeld e&ntfernen", Panel("RemoveColor")},
    {"mnuColorPopup", "mnuColorPopupReplace", u"D&urch aktive Farbe ersetzen",
     Panel("ReplaceColorByActive")},
    {"mnuColorPopup", "mnuColorPopupInsert", u"F&arbfeld einfügen", Panel("InsertColor")},
    {"mnuColorPopup", "mnuColorPopupS1", u"", kNothing},
    {"mnuColorPopup", "mnuColorAddReduce2", u"&Palette erweitern/reduzieren...",
     Dialog("frmPaletteER")},
    {"mnuColorPopup", "mnuColorPopupS2", u"", kNothing},
    {"mnuColorPopup", "mnuPalettes3", u"&Farbpaletten...", Dialog("frmPalettes")},

    {"mnuFilePopup", "mnuFilePopupOpenFolder", u"&Ordner öffnen", Panel("GoToFolder")},
    {"mnuFilePopup", "mnuFilePopupInput", u"&Pfad eingeben", Panel("SetText")},
    {"mnuFilePopup", "mnuFilePopupInsert", u"&Einfügen", Panel("DoInsert")},
    {"mnuFilePopup", "MnuFilePopupS1", u"", kNothing},
    {"mnuFilePopup", "MnuFilePopupS2", u"", kNothing},
    {"mnuFilePopup", "mnuFilePopupProperties", u"&Eigenschaften", Dialog("frmFileProperties")},

    {"mnuPhrasePopup", "mnuPhrasePopupInput", u"&Eingeben", Panel("mnuSend")},
    {"mnuPhrasePopup", "mnuPhrasePopupInputwoRTF", u"&Unformatiert eingeben",
     Panel("mnuSendAsText")},
    {"mnuPhrasePopup", "MnuPhrasePopupS1", u"", kNothing},
    {"mnuPhrasePopup", "mnuPhrasePopupEdit", u"&Bearbeiten...", Panel("EditItem")},
    {"mnuPhrasePopup", "mnuPhrasePopupDelete", u"&Löschen", Panel("DeleteItem")},
    {"mnuPhrasePopup", "MnuPhrasePopupS2", u"", kNothing},
    {"mnuPhrasePopup", "mnuPhrasePopupNew", u"&Neues Schnelltextelement", Panel("CreateNew")},
    {"mnuPhrasePopup", "mnuPhrasePopupPaste", u"Aus &Zwischenablage einfügen", Panel("Paste")},
    {"mnuPhrasePopup", "mnuPhrasePopupGroups", u"&Schnelltextgruppen...",
     Dialog("frmPhraseGroups")},
    {"mnuPhrases", "mnuPhrasesNew", u"&Neues Schnelltextelement", Panel("CreateNew")},
    {"mnuPhrases", "mnuPhrasesPaste", u"Aus Zwischenablage &einfügen", Panel("Paste")},
    {"mnuPhrases", "mnuPhrasesGroups", u"&Schnelltextgruppen...", Dialog("frmPhraseGroups")},

    {"mnuNotePopup", "mnuNotePopupInput", u"&[Eingeben]", Panel("mnuSend")},
    {"mnuNotePopup", "mnuNotePopupInputText", u"&Notiztext eingeben", Panel("mnuSendText")},
    {"mnuNotePopup", "mnuNotePopupInputHTML", u"&HTML eingeben", Panel("mnuSendHTML")},
    {"mnuNotePopup", "mnuNotePopupProperties", u"&Eigenschaften", Panel("mnuProperties")},
    {"mnuNotePopup", "mnuNotePopupEdit", u"Notiz &bearbeiten...", Panel("mnuEdit")},
    {"mnuNotePopup", "mnuNotePopupDelete", u"Notiz &löschen", Panel("mnuDelete")},
    {"mnuNotePopup", "mnuNotePopupNew", u"Ne&ue Notiz", Panel("mnuNew")},
    {"mnuNotePopup", "mnuNotePopupNewClipboard", u"Neue Notiz aus &Zwischenablage",
     Panel("mnuNewClip")},
    {"mnuNotes", "mnuNotesNew", u"Ne&ue Notiz", Panel("mnuNew")},
    {"mnuNotes", "mnuNotesNewClipboard", u"Neue Notiz aus &Zwischenablage", Panel("mnuNewClip")},

    {"mnuNA", "mnuNANA", u"Nicht verfügbar", kNothing},
};

}  // namespace

std::span<const PopupDesign> PopupDesigns() { return kDesigns; }

}  // namespace dorvalin
