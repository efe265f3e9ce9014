// The cutting data of one machine: a text file named after it, with a record in each line. What a line holds that is
// no record stays in the file as it is.
// Includes no control, form or runtime.
#pragma once

#include "frame/textfile.h"
#include "speedsfeeds/setup.h"

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <utility>
#include <vector>

namespace brindlex::speedsfeeds {

/// Names, each once, besides those that are listed already. An empty name, as a line without marks has, is none.
class DistinctNames {
public:
    explicit DistinctNames(const std::vector<std::string>& listed) : seen_(listed.begin(), listed.end()) {}

    void Add(std::string_view name);
    [[nodiscard]] std::vector<std::string> Take() { return std::move(fresh_); }

private:
    std::unordered_set<std::string> seen_;
    std::vector<std::string> fresh_;
};

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

/// Walks down a path, line by line. It looks at no unit, so that a tool of both units has the materials of both:
/// intended. Names that are the path's own are listed already and left out.
class Walk {
public:
    explicit Walk(Path path);

    void Take(std::string_view line);
    /// What the lines led to; once, at the end.
    [[nodiscard]] Choices Found();

private:
    Path path_;
    DistinctNames toolMaterials_;
    DistinctNames workMaterials_;
    std::optional<CuttingData> data_;
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
    /// The walk over all lines.
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
