#include "tools/sample.h"

#include "support/scratchfolder.h"

#include <filesystem>

namespace brindor::tests {

std::string peopleheader()
{
    return "name,date1,kind1,date2,kind2,desc1,desc2,faction,occupation\n";
}

std::string eventsheader()
{
    return "name,date1,kind1,date2,kind2,desc1,desc2,group,nation1,nation2,place,latitude,longitude,picture\n";
}

void writefolder(const std::string& folder, const std::string& peoplerows, const std::string& eventrows)
{
    std::filesystem::create_directories(folder);
    writefile(folder + "/people.csv", peopleheader() + peoplerows);
    writefile(folder + "/events.csv", eventsheader() + eventrows);
}

std::string goodpeople()
{
    return "Hypatia,360,ca.,415,,Taught geometry in Alexandria.,Killed by a mob.,Egypt,Scholar\n"
           "Zenobia,240,ca.,274,ca.,Took Egypt from Rome.,Led in chains of gold.,Palmyra,Ruler\n"
           "Kalidasa,400,ca.,,,Wrote of a cloud that bears a message.,,India,Poet\n"
           "Aryabhata,476,,550,ca.,Said that the earth turns.,,India,Scholar\n"
           "Ezana,330,ca.,356,ca.,Put the cross on the coins of Aksum.,,Aksum,Ruler\n"
           "Ge Hong,283,,343,,Sought the elixir of life.,,China,Scholar\n"
           "Frumentius,383,ca.,,,Brought a new faith to Aksum.,,Aksum,Priest\n"
           "Odaenathus,220,ca.,267,,Beat back the Persian king.,,Palmyra,Priest\n"
           "Cai Lun,121,ca.,,,Made the first good paper.,,China,Poet\n"
           "Diophantus,250,ca.,,,Gave numbers letters for names.,,Egypt,Scholar\n";
}

std::string goodevents()
{
    return "Battle of Edessa,260,,,,An emperor was taken alive.,,War,Rome,Persia,Edessa,37.15,38.8,\n"
           "Council of Nicaea,325,,,,Bishops settled a creed.,,Faith,Rome,,Nicaea,40.43,29.72,\n"
           "Sack of Luoyang,311,,,,The capital burned.,,War,China,,Luoyang,34.62,112.45,\n"
           "Founding of Nalanda,427,ca.,,,Monks came to learn.,,Faith,India,,Nalanda,25.14,85.44,\n"
           "Obelisks of Aksum,350,ca.,,,Giants of stone rose.,,Art,Aksum,,Aksum,14.13,38.72,\n"
           "Crossing of the Rhine,406,,,,Vandals walked over the ice.,,War,Vandals,,Mainz,50,8.27,\n"
           "Treaty of Acilisene,387,,,,Armenia was split in two.,,State,Rome,Persia,Erzurum,39.9,41.27,\n"
           "Iron pillar,402,ca.,,,It never rusted.,,Art,India,,Delhi,28.52,77.19,\n"
           "Battle of Fei River,383,,,,A panic scattered a host.,,State,China,,Shou,32.5,116.8,\n"
           "Sack of Carthage,439,,,,The grain of Africa was lost.,,State,Vandals,Aksum,Carthage,36.85,10.32,\n";
}

void writegood(const std::string& peoplerows, const std::string& eventrows)
{
    writefolder("in", goodpeople() + peoplerows, goodevents() + eventrows);
}

std::string report(const authoring::Findings& findings)
{
    std::string text;
    for (const authoring::Finding& finding : findings) {
        text += authoring::findingline(finding) + '\n';
    }
    return text;
}

std::string errors(authoring::Findings findings)
{
    std::erase_if(findings, [](const auto& finding) { return finding.severity != authoring::Severity::error; });
    return report(findings);
}

std::string errors(const authoring::Report& report)
{
    return errors(report.findings) + report.said;
}

std::string bmpfile(int width, int height)
{
    std::string bytes = "BM" + std::string(56, '\0');
    bytes[10] = 54; // where the pixels begin, behind two headers
    bytes[14] = 40;
    bytes[18] = static_cast<char>(width);
    bytes[22] = static_cast<char>(height);
    bytes[26] = 1;
    bytes[28] = 24; // bits a pixel
    return bytes;
}

} // namespace brindor::tests
