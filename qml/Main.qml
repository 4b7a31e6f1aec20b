// The one top-level window; it holds the application shell.
import QtQuick

Window {
    id: window

    title: qsTr("Orvanthis Solver")
    width: Math.max(1540, shell.projectRecommendedWidth)
    height: 1200
    minimumWidth: Math.max(1100, shell.projectRecommendedWidth)
    minimumHeight: 700
    // Painted before the shell's own background, so the window never flashes white.
    color: shell.theme.bg0
    flags: Qt.Window | Qt.WindowTitleHint | Qt.WindowSystemMenuHint | Qt.WindowMinMaxButtonsHint
           | Qt.WindowCloseButtonHint
    visible: true

    AppShell {
        id: shell
        anchors.fill: parent
        controller: typeof appController !== "undefined" ? appController : null
    }
}
