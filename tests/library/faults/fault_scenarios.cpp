// What an instance does while calls of it fail.
#include "library/faults/fault_scenarios.h"

#include <functional>
#include <iterator>

namespace zq::LM::test {

namespace {

constexpr std::uint32_t WithInterface = 1; // the log level that also shows tray and information
constexpr std::uint32_t AllLines = 255;

void Nothing(FaultHost&) {}

struct Option {
    const char* name;
    std::uint8_t LM_Params::*field; // null for none
};

constexpr Option Options[] = {
    {"Plain", nullptr},
    {"Outline", &LM_Params::outline},
    {"Pressure", &LM_Params::usePressure},
    {"Offset", &LM_Params::useOffset},
    {"Zebra", &LM_Params::zebraMode},
    {"Cursor", &LM_Params::cursor},
    {"Picker", &LM_Params::colorPicker},
};

void WriteThrice(FaultHost& host)
{
    for (int batch = 0; batch < 3; ++batch) {
        host.Write();
    }
    host.Age();
}

void CreateAndWrite(FaultHost& host)
{
    host.Create();
    host.SetRecord(FaultHost::Ink());
    host.Write();
}

FaultScenario WithOption(const BackEnd& backEnd, const char* name, const std::function<void(LM_Params&)>& set)
{
    return {std::string("Batches") + name + backEnd.name, backEnd,
            [set](FaultHost& host) {
                host.Create();
                LM_Params record = FaultHost::Ink();
                set(record);
                host.SetRecord(record);
            },
            WriteThrice};
}

void AddBatches(std::vector<FaultScenario>& all, const BackEnd& backEnd)
{
    for (const Option& option : Options) {
        all.push_back(WithOption(backEnd, option.name, [option](LM_Params& record) {
            if (option.field != nullptr) {
                record.*option.field = 1;
            }
        }));
    }
    all.push_back(WithOption(backEnd, "Hollow", [](LM_Params& record) {
        record.line = 0;
        record.outline = 1;
    }));
    all.push_back({std::string("BatchesInformation") + backEnd.name, backEnd,
                   [](FaultHost& host) {
                       CreateAndWrite(host);
                       host.SetLevel(AllLines);
                   },
                   WriteThrice});
}

void AddLives(std::vector<FaultScenario>& all, const BackEnd& backEnd)
{
    const std::string name = backEnd.name;
    all.push_back({"Create" + name, backEnd, Nothing, CreateAndWrite});
    all.push_back({"CreateWithInterface" + name, backEnd,
                   [](FaultHost& host) { host.SetLevel(WithInterface); }, CreateAndWrite});
    all.push_back({"Screen" + name, backEnd, CreateAndWrite, [](FaultHost& host) {
                       host.MoveShell({220, 80, 820, 500});
                       host.Write();
                       host.MoveShell(FaultHost::AtHome);
                       host.Send(WM_TIMER, 12345, 0);
                       host.Write();
                   }});
    all.push_back({"Destroy" + name, backEnd,
                   [](FaultHost& host) {
                       host.SetLevel(WithInterface);
                       CreateAndWrite(host);
                       host.Send(WM_COMMAND, SettingsCommand, 0);
                   },
                   [](FaultHost& host) { host.Destroy(); }});
}

void AddChanges(std::vector<FaultScenario>& all)
{
    for (const BackEnd& from : AllBackEnds) {
        for (const BackEnd& to : AllBackEnds) {
            if (from.command == to.command) {
                continue;
            }
            all.push_back({std::string("From") + from.name + "To" + to.name, from, CreateAndWrite,
                           [command = to.command](FaultHost& host) {
                               host.ChooseBackEnd(command);
                               host.PaintFrame();
                               host.Write();
                               host.Write();
                           },
                           to});
        }
    }
}

void UseTray(FaultHost& host)
{
    host.Send(TrayMessage, TrayMessage, WM_LBUTTONDOWN);
    host.Send(TrayMessage, TrayMessage, WM_RBUTTONDOWN);
    host.Send(WM_HOTKEY, 0, 0);
    host.Send(WM_COMMAND, SaveCommand, 0);
    host.Send(RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
}

void AddInterface(std::vector<FaultScenario>& all)
{
    const auto createWithInterface = [](FaultHost& host) {
        host.SetLevel(WithInterface);
        CreateAndWrite(host);
    };
    all.push_back({"Tray", GDIBackEnd, createWithInterface, UseTray});
    all.push_back({"Dialog", GDIBackEnd, CreateAndWrite, [](FaultHost& host) {
                       host.UseDialog();
                       host.UseDialog();
                   }});
    all.push_back({"BrushData", GDIBackEnd, CreateAndWrite, [](FaultHost& host) {
                       host.SendBrushData();
                       host.Write();
                   }});
}

} // namespace

std::vector<FaultScenario> AllFaultScenarios()
{
    std::vector<FaultScenario> all;
    for (const BackEnd& backEnd : AllBackEnds) {
        AddLives(all, backEnd);
        AddBatches(all, backEnd);
    }
    AddChanges(all);
    AddInterface(all);
    return all;
}

} // namespace zq::LM::test
