// Root of everything the user sees: the navigation over the five pages.
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

Item {
    id: shell

    property var controller: null
    property int navIndex: 0
    property int projectRecommendedWidth: 1540

    readonly property var _tabNames: [qsTr("Home"), qsTr("Setup"), qsTr("Solve"), qsTr("Results"), qsTr("Settings")]

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 60
            color: "#0D1117"

            Row {
                anchors.verticalCenter: parent.verticalCenter
                anchors.left: parent.left
                anchors.leftMargin: 16
                spacing: 8

                Repeater {
                    model: shell._tabNames

                    delegate: Rectangle {
                        required property int index
                        required property string modelData
                        readonly property bool active: shell.navIndex === index

                        width: tabLabel.implicitWidth + 32
                        height: 40
                        radius: 8
                        color: active ? "#1C2128" : "transparent"
                        border.color: active ? "#30363D" : "transparent"

                        Text {
                            id: tabLabel
                            anchors.centerIn: parent
                            text: modelData
                            font.pixelSize: 13
                            color: active ? "#F0F6FC" : "#8B949E"
                        }

                        MouseArea {
                            anchors.fill: parent
                            onClicked: shell.navIndex = index
                        }
                    }
                }
            }
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.preferredHeight: 1
            color: "#30363D"
        }

        Label {
            Layout.fillWidth: true
            Layout.fillHeight: true
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            text: shell._tabNames[shell.navIndex]
            font.pixelSize: 24
            color: "#8B949E"
        }
    }
}
