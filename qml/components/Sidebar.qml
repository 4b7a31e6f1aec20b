// A vertical navigation column: the brand, one row per page, and the build at the foot.
import QtQuick

Rectangle {
    id: root

    property var theme: null
    property int currentIndex: 0

    // Dark values used when the sidebar is shown without a theme.
    readonly property var _fallback: ({
        accent: "#3FB950",
        accentMuted: Qt.darker("#3FB950", 1.6),
        success: "#3FB950",
        bg1: "#0D1117",
        surface: "#1C2128",
        surfaceHover: "#30363D",
        stroke: "#30363D",
        text: "#F0F6FC",
        textMuted: "#8B949E",
        textFaint: "#6E7681",
        radiusSm: 8
    })
    readonly property var _pages: [
        { title: qsTr("Home"), subtitle: qsTr("Overview & quick actions"), icon: "home" },
        { title: qsTr("Setup"), subtitle: qsTr("Board, ranges, tree"), icon: "clipboard" },
        { title: qsTr("Solve"), subtitle: qsTr("Run solver"), icon: "bolt" },
        { title: qsTr("Results"), subtitle: qsTr("Browse strategies"), icon: "chart" },
        { title: qsTr("Settings"), subtitle: qsTr("Preferences"), icon: "gear" }
    ]
    readonly property int _margin: 16
    readonly property int _logoSize: 36
    readonly property int _statusDotSize: 8

    signal navigate(int index)

    function _t(token) {
        return theme ? theme[token] : _fallback[token]
    }

    implicitWidth: 240
    implicitHeight: 480
    color: _t("bg1")

    Rectangle {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        width: 1
        color: root._t("stroke")
    }

    Row {
        id: brand
        anchors.left: parent.left
        anchors.top: parent.top
        anchors.margins: root._margin
        spacing: 12

        Rectangle {
            objectName: "logoTile"
            width: root._logoSize
            height: root._logoSize
            radius: root._t("radiusSm")
            gradient: Gradient {
                GradientStop { position: 0.0; color: root._t("accent") }
                GradientStop { position: 1.0; color: root._t("accentMuted") }
            }

            Text {
                anchors.centerIn: parent
                text: qsTr("♠")
                color: "white"
                font.pixelSize: 20
                font.bold: true
            }
        }

        Column {
            anchors.verticalCenter: parent.verticalCenter
            spacing: 1

            Text {
                text: qsTr("Orvanthis")
                color: root._t("text")
                font.pixelSize: 16
                font.bold: true
            }

            Text {
                text: qsTr("Poker Solver")
                color: root._t("textMuted")
                font.pixelSize: 12
            }
        }
    }

    Column {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: brand.bottom
        anchors.topMargin: 24
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        spacing: 4

        Repeater {
            model: root._pages

            delegate: SidebarRow {
                required property int index
                required property var modelData

                objectName: "navRow" + index
                width: parent.width
                theme: root.theme
                title: modelData.title
                subtitle: modelData.subtitle
                iconName: modelData.icon
                selected: root.currentIndex === index
                onClicked: root.navigate(index)
            }
        }
    }

    Row {
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: root._margin
        spacing: 8

        Rectangle {
            objectName: "statusDot"
            anchors.verticalCenter: parent.verticalCenter
            width: root._statusDotSize
            height: root._statusDotSize
            radius: width / 2
            color: root._t("success")
        }

        Text {
            text: qsTr("v0.1.0 dev")
            color: root._t("textFaint")
            font.pixelSize: 12
        }
    }
}
