// Tales of pictures.
#include "app/picturetales.h"

#include "geometry/form17.h"
#include "geometry/report.h"

namespace brindlex {

std::string TaleOf(const PictureBox& picture) {
    const auto* const board = dynamic_cast<const geometry::Form17*>(&picture.Parent());
    if (board == nullptr || &picture != &board->Picture1 || board->Work.Entities.Empty()) {
        return {};
    }
    return geometry::ReportText(board->Work.Live().Lines(), board->Work.Measure(), {});
}

}  // namespace brindlex
