// Drawing files read without a form: every line is a record or stays as it is, what a record holds is finite and is
// printed again as it was read, and the board takes in as many as it has room for.
#include "readfuzz.h"

#include "frame/fault.h"
#include "geometry/board.h"
#include "geometry/geofile.h"
#include "geometry/record.h"

#include <algorithm>

namespace brindlex::geometry {
namespace {

void CheckLine(const std::string& line) {
    const Record record = ReadRecord(line);
    Demand(std::all_of(record.Values.begin(), record.Values.end(), [](double value) { return std::isfinite(value); }));
    Demand(record.Shape != Kind::None || RepairedRecord(line, false, false) == line);
    Demand(RepairedRecord(line, true, true) == line);
    const std::string lone = RepairedRecord(line, true, false);
    Demand(KindOf(lone) == record.Shape);
    Demand(NumberOf(lone) == record.Number);
    static_cast<void>(TangencyOf(line));
    static_cast<void>(PrintFields(ReadFields(line)));
    Guarded([&] { Demand(KindOf(ConvertedRecord(line, 25.4)) == record.Shape); });
}

/// A record made of the text's numbers is read back, and printed again as it was.
void CheckPrinting(const Record& record, int number) {
    const Segment ends = record.Ends();
    const std::string line = LineTangentRecord(number, ends, "1", "2");
    Demand(PrintFields(ReadFields(line)) == line);
    const Segment back = ReadRecord(line).Ends();
    Demand(std::fabs(back.End.Y - ends.End.Y) <= std::fabs(ends.End.Y) * 1e-14);
    Demand(PartnersOf(line).First == 1 && PartnersOf(line).Second == 2);
    const std::string circle =
        CircleTangentRecord(number, record.Values[0], ends.Start, " 3  ,  4 ", ends.Start, ends.End);
    Demand(PrintFields(ReadFields(circle)) == circle);
    Demand(PartnersOf(circle).First == 3 && PartnersOf(circle).Second == 4);
}

void CheckBoard(const std::vector<std::string>& lines) {
    Board board;
    const Scale view;
    board.Reload(lines, view);
    Demand(board.CircleTop >= 0 && board.LineTop >= 0 && board.PointTop >= 0);
    Demand(board.Count(Kind::Circle) <= CircleBound / CircleWidth && board.Count(Kind::Line) <= LineBound / LineWidth &&
           board.Count(Kind::Point) <= PointBound / PointWidth);
    const auto isFinite = [](double value) { return std::isfinite(value); };
    Demand(std::all_of(board.CircleArr.begin(), board.CircleArr.end(), isFinite));
    Demand(std::all_of(board.LineArr.begin(), board.LineArr.end(), isFinite));
    Demand(std::all_of(board.PointArr.begin(), board.PointArr.end(), isFinite));
}

void CheckAll(std::string_view text) {
    constexpr std::size_t MostLines = 5;
    std::vector<std::string> lines;
    while (!text.empty() && lines.size() < MostLines) {
        lines.emplace_back(TakeLine(text));
        const std::string& line = lines.back();
        if (const auto unit = UnitOf(line)) {
            Demand(GeoLines({}, *unit).front() == line && KindOf(line) == Kind::None);
        }
        CheckLine(line);
        // What is no record has no numbers of its own, and printing is what takes the time.
        if (const Record record = ReadRecord(line); record.Shape != Kind::None) {
            CheckPrinting(record, static_cast<int>(lines.size()));
        }
    }
    CheckBoard(lines);
}

}  // namespace
}  // namespace brindlex::geometry

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    brindlex::geometry::CheckAll(brindlex::TextOf(data, size));
    return 0;
}
