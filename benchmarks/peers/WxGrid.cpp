// bench_wx_peer DATABASE: wxGrid on its own table of strings, in a window on the screen.

#include "orders/BareLoop.h"
#include "peers/Records.h"
#include "support/Figures.h"
#include "support/Records.h"

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/grid.h>
#include <wx/utils.h>

namespace Bench {
namespace {

constexpr int width = 1000;
constexpr int height = 700;
constexpr int rowPixels = 21;
constexpr int columnPixels = 95;
constexpr int jumps = 100;
constexpr int seenPages = 5;
constexpr int advances = 90;

void Demand(bool isSo, const char* what)
{
    if (!isSo)
        throw std::runtime_error(std::string("it does not hold that ") + what);
}

class Program : public wxApp {
public:
    bool OnInit() override
    {
        frame_ = new wxFrame(nullptr, wxID_ANY, "wxGrid", wxDefaultPosition, wxSize(width, height));
        grid_ = new wxGrid(frame_, wxID_ANY);
        grid_->GetGridWindow()->Bind(wxEVT_PAINT, [this](wxPaintEvent& event) {
            ++paints_;
            event.Skip();
        });
        frame_->SetClientSize(width, height);
        frame_->Show();
        CallAfter([this] {
            try {
                Measure();
            } catch (const std::exception& failure) {
                std::fprintf(stderr, "%s\n", failure.what());
                status_ = 2;
            }
            ExitMainLoop();
        });
        return true;
    }

    int OnRun() override
    {
        wxApp::OnRun();
        return status_;
    }

private:
    /// Paints what is due and waits until the X server has it: that is where the mouse is known. The toolkit itself
    /// would wait for its next frame.
    void Paint()
    {
        grid_->Update();
        mouse_ = wxGetMousePosition().x;
    }

    /// Lets the toolkit do what it has put off, for as long as it says that there is something.
    static void Settle()
    {
        for (int i = 0; i < 20; ++i) {
            wxYield();
            wxMilliSleep(10);
        }
    }

    template <class Deed>
    double PaintedSeconds(int count, const Deed& deed)
    {
        std::vector<double> seconds;
        const int before = paints_;
        for (int i = 0; i < count; ++i) {
            seconds.push_back(SecondsOf([&] {
                deed(i);
                Paint();
            }));
            // What is left for the toolkit's own loop is not counted.
            wxYield();
        }
        Demand(paints_ - before >= count, "each is painted");
        return Median(seconds);
    }

    void Measure()
    {
        Settle();
        const std::string database = argv[1].utf8_string();
        Tell("before", static_cast<double>(Orders::PeakMemory().value_or(0)));
        Tell("seconds", SecondsOf([&] {
                 Fill(database);
                 Paint();
             }));
        Tell("peak", static_cast<double>(Orders::PeakMemory().value_or(0)));
        Tell("rows", grid_->GetNumberRows());
        Checksum checksum;
        for (int row = 0; row < grid_->GetNumberRows(); ++row)
            for (const int field : plainFields)
                checksum.Add(grid_->GetCellValue(row, field).ToStdWstring());
        Tell("checksum", checksum.Value());
        Settle();
        const int rows = grid_->GetNumberRows();
        const int page = height / rowPixels;
        const auto goTo = [&](int which) {
            const int half = rows / page / 2;
            const int to = which / 2 * (half - 1) / (jumps / 2) + 1 + which % 2 * half;
            grid_->Scroll(0, to * page * rowPixels / linePixels_);
        };
        Tell("jump", PaintedSeconds(jumps, goTo));
        Tell("seenJump", PaintedSeconds(jumps, [&](int i) { goTo(i % seenPages); }));
        Advance(rows / 2);
    }

    void Fill(const std::string& database)
    {
        const int rows = Records::Count(database);
        auto* const table = new wxGridStringTable(rows, fieldCount);
        Records records(database, query);
        for (int row = 0; records.Next(); ++row) {
            for (int field = 0; field < fieldCount; ++field) {
                const std::string_view text = records.Text(field);
                table->SetValue(row, field, wxString::FromUTF8(text.data(), text.size()));
            }
        }
        const wxGridUpdateLocker locker(grid_);
        grid_->SetDefaultRowSize(rowPixels);
        grid_->SetDefaultColSize(columnPixels);
        grid_->AssignTable(table);
        int across = 0;
        grid_->GetScrollPixelsPerUnit(&across, &linePixels_);
    }

    void Advance(int row)
    {
        grid_->SetFocus();
        grid_->GoToCell(row, 0);
        grid_->EnableCellEditControl();
        Settle();
        int at = 0;
        const double seconds = PaintedSeconds(advances, [&](int) {
            ++at;
            grid_->DisableCellEditControl();
            grid_->GoToCell(row + at / fieldCount, at % fieldCount);
            grid_->EnableCellEditControl();
        });
        Demand(grid_->IsCellEditControlShown(), "an editor is open");
        Tell("advance", seconds);
    }

    wxFrame* frame_ = nullptr;
    wxGrid* grid_ = nullptr;
    int paints_ = 0;
    int linePixels_ = 1;
    int status_ = 0;
    volatile int mouse_ = 0;
};

} // namespace
} // namespace Bench

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    wxApp::SetInstance(new Bench::Program);
    return wxEntry(count, arguments);
}
