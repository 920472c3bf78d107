#include <iostream>

#include "foundation/product.h"
#include "tools/commands.h"

namespace {

constexpr int usageStatus = 2;

} // namespace

void failCommand(const std::string &message) {
    std::cerr << "zelvane: " << message << '\n';
    throw CLI::RuntimeError(1);
}

int main(int argc, char **argv) {
    CLI::App app("Looks at and steers Zelvane and the applications that run on it", "zelvane");
    app.set_version_flag("--version", std::string(productName) + " " + productVersion);
    app.footer("Exit status: 0 done, 1 the verb failed and said why, 2 the command line is wrong.");
    app.require_subcommand(1);
    addMonitorCommand(app);
    addProfilesCommand(app);
    addUseCommand(app);
    addReportCommand(app);
    addStrictCommand(app);
    try {
        app.parse(argc, argv);
    } catch (const CLI::RuntimeError &error) {
        return error.get_exit_code();
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : usageStatus;
    } catch (const std::exception &error) {
        std::cerr << "zelvane: " << error.what() << '\n';
        return 1;
    }
}
