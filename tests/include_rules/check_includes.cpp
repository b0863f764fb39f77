// The include rules of the source tree, where a folder is a layer:
//   core   numeric/, units/, hydraulics/, tools/*/calc/   no Qt at all;
//   model  forms/store/, forms/model/, frame/model/, datasheets/model/,
//          tools/*/model/                                  no widget, GUI,
//          printing or network header, nothing of a ui layer;
//   ui     forms/ui/, frame/ui/, datasheets/ui/, tools/*/ui/, platform/;
//   cli    calc/ (core and models only); app  app/.
// A tool reaches another tool only through that tool's model/ folder, and
// neither the folders nor the subsystems include each other in a circle.
// Usage: kestrova-include-rules SOURCE_FOLDER QT_MODULE_INCLUDE_FOLDER...

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

enum class Layer { Core, Model, Ui, Cli, App, Unplaced };

const char* nameOf(Layer layer)
{
    switch (layer) {
    case Layer::Core: return "core";
    case Layer::Model: return "model";
    case Layer::Ui: return "ui";
    case Layer::Cli: return "cli";
    case Layer::App: return "app";
    case Layer::Unplaced: return "no layer";
    }
    return "";
}

std::vector<std::string> partsOf(const std::string& path)
{
    std::vector<std::string> parts;
    for (const auto& part : fs::path(path))
        parts.push_back(part.string());
    return parts;
}

Layer layerOf(const std::string& path)
{
    const std::vector<std::string> p = partsOf(path);
    if (p.empty())
        return Layer::Unplaced;
    if (p[0] == "numeric" || p[0] == "units" || p[0] == "hydraulics")
        return Layer::Core;
    if (p[0] == "calc")
        return Layer::Cli;
    if (p[0] == "app")
        return Layer::App;
    if (p[0] == "platform")
        return Layer::Ui;
    const std::string sub = p[0] == "tools" ? (p.size() > 2 ? p[2] : "") : (p.size() > 1 ? p[1] : "");
    if (p[0] == "tools" || p[0] == "forms" || p[0] == "frame" || p[0] == "datasheets") {
        if (sub == "calc" && p[0] == "tools")
            return Layer::Core;
        if (sub == "model" || (sub == "store" && p[0] == "forms"))
            return Layer::Model;
        if (sub == "ui")
            return Layer::Ui;
    }
    return Layer::Unplaced;
}

// The subsystem: a top folder, or a tool.
std::string componentOf(const std::string& path)
{
    const std::vector<std::string> p = partsOf(path);
    return p[0] == "tools" && p.size() > 1 ? "tools/" + p[1] : p[0];
}

std::string folderOf(const std::string& path)
{
    return fs::path(path).parent_path().string();
}

bool allowed(Layer from, Layer to)
{
    switch (from) {
    case Layer::Core: return to == Layer::Core;
    case Layer::Model: return to == Layer::Core || to == Layer::Model;
    case Layer::Ui: return to != Layer::Cli && to != Layer::App && to != Layer::Unplaced;
    case Layer::Cli: return to == Layer::Core || to == Layer::Model || to == Layer::Cli;
    case Layer::App: return to != Layer::Cli && to != Layer::Unplaced;
    case Layer::Unplaced: return false;
    }
    return false;
}

// Strongly connected groups of more than one node (Tarjan).
std::vector<std::vector<std::string>> circles(const std::map<std::string, std::set<std::string>>& graph)
{
    std::map<std::string, int> index, low;
    std::vector<std::string> stack;
    std::set<std::string> onStack;
    std::vector<std::vector<std::string>> found;
    int counter = 0;
    std::function<void(const std::string&)> visit = [&](const std::string& v) {
        index[v] = low[v] = counter++;
        stack.push_back(v);
        onStack.insert(v);
        const auto edges = graph.find(v);
        if (edges != graph.end())
            for (const std::string& w : edges->second) {
                if (!index.count(w)) {
                    visit(w);
                    low[v] = std::min(low[v], low[w]);
                } else if (onStack.count(w)) {
                    low[v] = std::min(low[v], index[w]);
                }
            }
        if (low[v] == index[v]) {
            std::vector<std::string> group;
            std::string w;
            do {
                w = stack.back();
                stack.pop_back();
                onStack.erase(w);
                group.push_back(w);
            } while (w != v);
            if (group.size() > 1)
                found.push_back(group);
        }
    };
    for (const auto& [v, edges] : graph)
        if (!index.count(v))
            visit(v);
    return found;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::cerr << "usage: kestrova-include-rules SOURCE_FOLDER QT_MODULE_INCLUDE_FOLDER...\n";
        return 2;
    }
    const fs::path root(argv[1]);
    // The Qt headers a model may not include: those of the widget, GUI,
    // printing and network modules.
    std::set<std::string> forbiddenQt;
    for (int i = 2; i < argc; ++i) {
        const fs::path folder(argv[i]);
        const std::string module = folder.filename().string();
        if (module != "QtWidgets" && module != "QtGui" && module != "QtPrintSupport" && module != "QtNetwork")
            continue;
        if (fs::is_directory(folder))
            for (const auto& entry : fs::directory_iterator(folder))
                forbiddenQt.insert(entry.path().filename().string());
        forbiddenQt.insert(module);
    }

    const std::regex include(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
    std::vector<std::string> broken;
    std::map<std::string, std::set<std::string>> folders, components;
    for (const auto& entry : fs::recursive_directory_iterator(root)) {
        const std::string ext = entry.path().extension().string();
        if (!entry.is_regular_file() || (ext != ".h" && ext != ".cpp"))
            continue;
        const std::string file = fs::relative(entry.path(), root).generic_string();
        const Layer layer = layerOf(file);
        if (layer == Layer::Unplaced) {
            broken.push_back(file + ": lies in no layer's folder");
            continue;
        }
        std::ifstream in(entry.path());
        std::string line;
        while (std::getline(in, line)) {
            std::smatch m;
            if (!std::regex_search(line, m, include))
                continue;
            const std::string target = m[2];
            if (m[1] == "<") {
                const std::string head = target.substr(0, target.find('/'));
                const bool qt = !target.empty() && target[0] == 'Q';
                if (layer == Layer::Core && qt)
                    broken.push_back(file + ": a core file includes <" + target + ">");
                if (layer == Layer::Model && qt && (forbiddenQt.count(target) || forbiddenQt.count(head)))
                    broken.push_back(file + ": a model includes the widget-side <" + target + ">");
                continue;
            }
            if (!fs::exists(root / target))
                continue; // a header of another tree (a test's, a generated one)
            const Layer to = layerOf(target);
            if (!allowed(layer, to))
                broken.push_back(file + ": " + nameOf(layer) + " includes " + nameOf(to) + " \"" + target + "\"");
            const std::string from = componentOf(file), into = componentOf(target);
            if (from.rfind("tools/", 0) == 0 && into.rfind("tools/", 0) == 0 && from != into &&
                partsOf(target).size() > 2 && partsOf(target)[2] != "model")
                broken.push_back(file + ": reaches " + into + " outside its model/ \"" + target + "\"");
            if (folderOf(file) != folderOf(target))
                folders[folderOf(file)].insert(folderOf(target));
            if (from != into)
                components[from].insert(into);
        }
    }
    for (const auto* graph : {&folders, &components})
        for (auto group : circles(*graph)) {
            std::sort(group.begin(), group.end());
            std::string text = "these include each other in a circle:";
            for (const std::string& node : group)
                text += " " + node;
            broken.push_back(text);
        }

    for (const std::string& line : broken)
        std::cout << line << '\n';
    std::cout << broken.size() << " include rules broken\n";
    return broken.empty() ? 0 : 1;
}
