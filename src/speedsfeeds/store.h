// The cutting data of one machine: a text file named after it, with a record in each line. What a line holds that is
// no record stays in the file as it is.
// Includes no control, form or runtime.
#pragma once

#include "frame/textfile.h"
#include "speedsfeeds/setup.h"

#include <optional>
#include <string>
#include <vector>

namespace brindlex::speedsfeeds {

/// What was chosen so far; an empty name is not chosen yet.
struct Path {
    std::string Tool;
    std::string ToolMaterial;
    std::string WorkMaterial;
};

/// The numbers behind a whole path.
struct CuttingData {
    std::string SpeedRange;
    std::string FeedRange;
    std::string PowerFactor;  ///< the last one in the path's records that is not 0; empty where none is
};

/// What a path leads to. Names stand in the order of their first appearance, each once.
struct Choices {
    std::vector<std::string> ToolMaterials;
    std::vector<std::string> WorkMaterials;
    std::optional<CuttingData> Data;  ///< of the last record with the path
};

/// A store. All functions throw Fault where the file can't be opened, read or written; a failed rewrite leaves the
/// old file whole.
class Store {
public:
    Store(Folder folder, const std::string& machine);

    [[nodiscard]] const std::string& FileName() const { return file_; }

    /// Makes sure that the file exists.
    void EnsureStore() const;
    /// Rewrites the store with the line at its end; where it stood before it goes, and so do empty lines.
    void AppendRecord(const std::string& line) const;
    /// Rewrites the store without the line and without empty lines.
    void DeleteRecord(const std::string& line) const;

    /// The tools with data of the unit that are not listed already.
    [[nodiscard]] std::vector<std::string> Tools(Unit unit, const std::vector<std::string>& listed) const;
    /// Walks down a path. It looks at no unit, so that a tool of both units has the materials of both: intended.
    /// Names that are the path's own are listed already and left out.
    [[nodiscard]] Choices WalkDown(const Path& path) const;

private:
    template <class Use>
    void ForEachLine(Use&& use) const;
    void RewriteWithout(const std::string& line, bool appended) const;

    Folder folder_;
    std::string file_;
    std::string scratch_;
};

}  // namespace brindlex::speedsfeeds
