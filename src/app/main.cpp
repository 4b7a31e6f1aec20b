// Process entry of the Orvanthis desktop application.
#include <QtQml/qqmlextensionplugin.h>

#include "app/application.h"

// The QML module Kelvane is linked statically; this pulls in its plugin and type registration.
Q_IMPORT_QML_PLUGIN(KelvanePlugin)

int main(int argc, char* argv[]) { return kelvane_app::run_application(argc, argv); }
