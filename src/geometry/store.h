// The live drawing geometry.dat and the scratch files beside it, in the working directory.
// A rewrite replaces the old file by the new one in one step. Nothing here throws: where the disk refuses, the
// answer is false and the store is as it was. Includes no control, form or runtime.
#pragma once

#include "frame/textfile.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brindlex::geometry {

inline constexpr std::string_view StoreFile = "geometry.dat";

/// The scratch files by the operations that pass through them; none outlives its operation.
namespace scratch {
inline constexpr std::string_view Delete = "geo.tmp";        ///< deletion by the lists
inline constexpr std::string_view Rewrite = "geometry.tmp";  ///< removal by the pointer, Keep, copy for the repair
inline constexpr std::string_view Repair = "geochk.tmp";     ///< repair of the tails
inline constexpr std::string_view Extend = "tmp.tmp";        ///< extension of lines
inline constexpr std::string_view LineCopy = "aaaa.tmp";     ///< the line records, for the tangent circles
inline constexpr std::string_view Report = "bbbb.tmp";       ///< the report
inline constexpr std::string_view Convert = "convert.dat";   ///< change of unit
}  // namespace scratch

class Store {
public:
    explicit Store(const Folder& folder) : folder_(&folder) {}

    /// All lines, in order. A missing or unreadable store reads as an empty one.
    [[nodiscard]] std::vector<std::string> Lines() const;
    /// All lines; nothing where there is a store that can't be read, so that no one rewrites what he did not see.
    [[nodiscard]] std::optional<std::vector<std::string>> TryLines() const;
    /// The first line; empty where there is none.
    [[nodiscard]] std::string FirstLine() const;
    /// How many records it holds; lines without a kind word do not count.
    [[nodiscard]] int Count() const;

    /// Opens, prints the records, closes.
    bool Append(std::string_view record) const;
    bool Append(const std::vector<std::string>& records) const;
    /// Puts these lines in the store's place in one step; a left-over scratch file of the operation goes.
    bool Rewrite(std::string_view scratchFile, const std::vector<std::string>& lines) const;
    /// Repairs the tails of computed records whose partners went; writes only where it read the store.
    bool CheckTangents() const;

    /// Empties the store: deleted, then created empty.
    bool Clear() const;
    /// Clear, and the same with the copy of the line records (the form loads).
    /// What a killed run left half written goes.
    bool Begin() const;
    /// Deletes the store and every scratch file left over (the form ends).
    void End() const;

    /// Whether a path names the store or one of its scratch files, which end with the form.
    [[nodiscard]] bool Owns(std::string_view name) const;

    /// Copies the line records of the lines to the scratch file of the tangent circles.
    bool WriteLineCopy(const std::vector<std::string>& lines) const;
    /// The copy, and deletes it; nothing where there is none that can be read.
    [[nodiscard]] std::optional<std::vector<std::string>> TakeLineCopy() const;
    void KillLineCopy() const;

private:
    const Folder* folder_;
};

}  // namespace brindlex::geometry
