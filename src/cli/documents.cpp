// Reports of drawings.
#include "cli/documents.h"

#include "cli/drawing.h"
#include "frame/textfile.h"
#include "geometry/crossings.h"
#include "geometry/report.h"

namespace brindlex::cli {

std::string RunReport(const Arguments& given, const StandardInput&) {
    const Drawing drawing = ReadDrawing(given.Words.front());
    return geometry::ReportText(drawing.Records, drawing.Measure, geometry::FindCrossings(drawing.Records).Crossing);
}

}  // namespace brindlex::cli
