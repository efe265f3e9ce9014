// Results of documents, reports of drawings.
#include "cli/documents.h"

#include "boltcircle/document.h"
#include "cli/bolt.h"
#include "cli/drawing.h"
#include "cli/files.h"
#include "cli/plates.h"
#include "cli/triangles.h"
#include "geometry/crossings.h"
#include "geometry/report.h"
#include "oblique/answer.h"
#include "polygon/document.h"
#include "righttri/answer.h"
#include "sineplate/document.h"

#include <algorithm>

namespace brindlex::cli {

namespace {

struct DocumentKind {
    std::string_view Ending;
    std::size_t MostLines;
    Answer (*Solve)(const std::vector<std::string>& lines, const Display& display);
};
constexpr DocumentKind Kinds[] = {{"rgt", righttri::DocumentLines, RightFromDocument},
                                  {"obl", oblique::DocumentLines, ObliqueFromDocument},
                                  {"bcf", boltcircle::DocumentLines, BoltFromDocument},
                                  {"sin", sineplate::DocumentLines, SinePlateFromDocument},
                                  {"pgf", polygon::DocumentLines, PolygonFromDocument}};

const DocumentKind& DocumentKindOf(const std::string& file) {
    const std::string ending = EndingOf(file);
    for (const DocumentKind& row : Kinds) {
        if (row.Ending == ending) {
            return row;
        }
    }
    throw Failure(Exit::Usage, file + ": the ending is none of .rgt .obl .bcf .sin .pgf");
}

/// Throws Failure that names the file.
Answer AnswerOf(const std::string& file, const Display& display) {
    const DocumentKind& kind = DocumentKindOf(file);
    const std::vector<std::string> lines = DocumentOf(file, kind.MostLines);
    try {
        Answer answer = kind.Solve(lines, display);
        answer.File = file;
        return answer;
    } catch (const Failure& failure) {
        throw Failure(failure.Code(), file + ": " + failure.what());
    }
}

/// Throws Failure that names the file unless it has a result; a drawing's is its report.
void CheckOne(const std::string& file, const Display& display) {
    if (EndingOf(file) == "geo") {
        static_cast<void>(ReadDrawing(file));
    } else {
        static_cast<void>(AnswerOf(file, display));
    }
}

/// A line for each file. Where one fails the first failure's code ends it, with all lines as findings.
std::string Checked(const std::vector<std::string>& files, const Display& display) {
    std::string lines;
    std::size_t bad = 0;
    Exit code = Exit::Done;
    for (const std::string& file : files) {
        try {
            CheckOne(file, display);
            lines.append(file).append(": ok\n");
        } catch (const Failure& failure) {
            lines.append(failure.what()).append("\n");
            code = ++bad == 1 ? failure.Code() : code;
        }
    }
    if (bad != 0) {
        throw Failure(code, std::to_string(bad) + " of " + std::to_string(files.size()) + " files have no result",
                      lines);
    }
    return lines;
}

}  // namespace

std::string RunSolve(const Arguments& given, const StandardInput&) {
    const Display display = DisplayFrom(given);
    const Style style = StyleFrom(given);
    if (given.Has("--check")) {
        if (style != Style::Table) {
            throw Failure(Exit::Usage, "--json and --csv do not go with --check");
        }
        return Checked(given.Words, display);
    }
    std::vector<Answer> answers;
    for (const std::string& file : given.Words) {
        answers.push_back(AnswerOf(file, display));
    }
    return WrittenWithFiles(answers, style);
}

std::string RunReport(const Arguments& given, const StandardInput&) {
    const Drawing drawing = ReadDrawing(given.Words.front());
    return geometry::ReportText(drawing.Records, drawing.Measure, geometry::FindCrossings(drawing.Records).Crossing);
}

}  // namespace brindlex::cli
