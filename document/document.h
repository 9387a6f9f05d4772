// The settings document: the one record, its current file, and the operations on them.
#pragma once

#include "document/record.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace modINIDocument {

inline SettingsRecord g_Document;

/// Full path of the INI file that reads and writes use; empty while the document was never saved.
inline std::string g_strINIFilePath;
/// Its name with extension; "UNTITLED" for a new document.
inline std::string g_strINIFileTitle;
/// The document has edits that no save has stored.
inline bool g_bolDocumentChanged = false;

/// A list section whose later key has more pieces than its first. Nothing outside the list was
/// written; the record holds what was read up to there, so the caller must not keep it.
class DamagedList : public std::out_of_range {
    using std::out_of_range::out_of_range;
};

/// Sets every setting that has a default to it. DefaultType, DefaultPrinterName and DebugOn are
/// inherited from the document edited before; file path and failure flags stay as well.
void ResetDocument();

/// Fills the record from g_strINIFilePath, key by key. Shows one message box at the end when any
/// read of this run has failed. Throws DamagedList.
void ReadDocument();

/// The box that ReadDocument shows at its end. A caller that DamagedList reached shows it itself:
/// the reader never came to its end.
void ShowReadFailure();

/// Stores the record in g_strINIFilePath, key by key, committed once. An empty text becomes " " in
/// the record and in the file. Shows one message box at the end when a write failed (WriteFailed).
void WriteDocument();

// Single values of g_strINIFilePath. Reads set ReadFailed on failure and return "", false or 0.
std::string ReadText(std::string_view section, std::string_view key);
Boolean ReadBoolean(std::string_view section, std::string_view key);
Integer ReadInteger(std::string_view section, std::string_view key);

// Writes set WriteFailed on failure. WriteText turns an empty field into " ".
void WriteText(std::string_view section, std::string_view key, std::string& field);
void WriteBoolean(std::string_view section, std::string_view key, Boolean& field);
void WriteInteger(std::string_view section, std::string_view key, Integer& field);

// The list sections. Readers replace the list; they throw DamagedList.
void ReadServerPairs(std::vector<NamePair>& list);
void ReadPrinterPairs(std::vector<NamePair>& list);
void ReadMixedPairs(std::vector<MixedPair>& list);
void ReadEmailTo(std::vector<std::string>& list);
void ReadPopulateList(std::vector<ServerPrinterName>& list);
void ReadPruneList(std::vector<ServerPrinterName>& list);
void ReadPrinterDrivers(std::vector<PrinterDriver>& list);

void WriteServerPairs(const std::vector<NamePair>& list);
void WritePrinterPairs(const std::vector<NamePair>& list);
void WriteMixedPairs(const std::vector<MixedPair>& list);
void WriteEmailTo(const std::vector<std::string>& list);
void WritePopulateList(const std::vector<ServerPrinterName>& list);
void WritePruneList(const std::vector<ServerPrinterName>& list);
void WritePrinterDrivers(const std::vector<PrinterDriver>& list);

} // namespace modINIDocument
