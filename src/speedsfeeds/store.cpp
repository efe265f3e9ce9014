// The store of cutting data: rewrites in one step, and lists with an index of what is in them.
#include "speedsfeeds/store.h"

#include "frame/fault.h"
#include "frame/text.h"
#include "speedsfeeds/record.h"

#include <string_view>
#include <utility>

namespace brindlex::speedsfeeds {

namespace {

/// A factor that is no number, or too large for one, counts as none.
bool IsFactor(std::string_view text) {
    double value = 0;
    Guarded([&] { value = Val(text); });
    return value != 0;
}

void TakeData(CuttingData& data, std::string_view line) {
    data.SpeedRange = SpeedRangeOf(line);
    data.FeedRange = FeedRangeOf(line);
    // A record without a factor leaves that of an earlier one: intended.
    if (const std::string_view factor = PowerFactorOf(line); IsFactor(factor)) {
        data.PowerFactor = factor;
    }
}

}  // namespace

void DistinctNames::Add(std::string_view name) {
    if (!name.empty() && seen_.emplace(name).second) {
        fresh_.emplace_back(name);
    }
}

Walk::Walk(Path path)
    : path_(std::move(path)), toolMaterials_({path_.ToolMaterial}), workMaterials_({path_.WorkMaterial}) {
}

void Walk::Take(std::string_view line) {
    if (path_.Tool.empty() || ToolOf(line) != path_.Tool) {
        return;
    }
    toolMaterials_.Add(ToolMaterialOf(line));
    if (path_.ToolMaterial.empty() || ToolMaterialOf(line) != path_.ToolMaterial) {
        return;
    }
    workMaterials_.Add(WorkMaterialOf(line));
    if (path_.WorkMaterial.empty() || WorkMaterialOf(line) != path_.WorkMaterial) {
        return;
    }
    if (!data_) {
        data_.emplace();
    }
    TakeData(*data_, line);
}

Choices Walk::Found() {
    return {toolMaterials_.Take(), workMaterials_.Take(), std::move(data_)};
}

Store::Store(Folder folder, const std::string& machine)
    : folder_(std::move(folder)), file_(machine + ".dat"), scratch_(machine + ".tmp") {
}

template <class Use>
void Store::ForEachLine(Use&& use) const {
    InputFile input = folder_.OpenInput(file_);
    while (!input.Eof()) {
        use(input.LineInput());
    }
}

void Store::EnsureStore() const {
    folder_.Touch(file_);
}

void Store::AppendRecord(const std::string& line) const {
    RewriteWithout(line, true);
}

void Store::DeleteRecord(const std::string& line) const {
    RewriteWithout(line, false);
}

void Store::RewriteWithout(const std::string& line, bool appended) const {
    EnsureStore();
    // The lines of a scratch file that was left over would come back with this rewrite.
    folder_.KillIfThere(scratch_);
    std::vector<std::string> lines;
    // A store that can't be read to its end is not rewritten: the fault goes on from here.
    ForEachLine([&](std::string stored) {
        if (!stored.empty() && stored != line) {
            lines.push_back(std::move(stored));
        }
    });
    if (appended) {
        lines.push_back(line);
    }
    folder_.RewriteLines(file_, lines, Durability::Disk);
}

std::vector<std::string> Store::Tools(Unit unit, const std::vector<std::string>& listed) const {
    DistinctNames tools(listed);
    ForEachLine([&](const std::string& line) {
        if (IsOfUnit(line, unit)) {
            tools.Add(ToolOf(line));
        }
    });
    return tools.Take();
}

Choices Store::WalkDown(const Path& path) const {
    Walk walk(path);
    ForEachLine([&](const std::string& line) { walk.Take(line); });
    return walk.Found();
}

}  // namespace brindlex::speedsfeeds
