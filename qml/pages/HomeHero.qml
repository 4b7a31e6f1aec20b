// The band at the top of Home: the product's name and line, the three project buttons, and the logo.
import QtQuick
import QtQuick.Layouts
import Kelvane

Rectangle {
    id: hero

    property var theme: null
    property var type: null

    readonly property int _bandHeight: 180
    readonly property real _accentDepth: 2.5
    readonly property int _logoSize: 140

    signal newSolveClicked()
    signal saveClicked()
    signal openClicked()

    implicitHeight: _bandHeight
    radius: theme.radiusLg
    border.color: theme.stroke
    border.width: 1
    gradient: Gradient {
        orientation: Gradient.Horizontal

        GradientStop {
            position: 0.0
            color: hero.theme.surface
        }
        GradientStop {
            position: 1.0
            color: Qt.darker(hero.theme.accent, hero._accentDepth)
        }
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: hero.theme.space2Xl
        anchors.rightMargin: hero.theme.space2Xl
        spacing: hero.theme.spaceXl

        ColumnLayout {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            spacing: hero.theme.spaceSm

            Text {
                text: qsTranslate("HomePage", "Orvanthis")
                color: hero.theme.text
                font.family: hero.theme.fontFamily
                font.pixelSize: hero.type.displayMd
                font.weight: hero.type.weightBold
            }

            Text {
                Layout.fillWidth: true
                text: qsTranslate("HomePage", "A modern, high-performance holdem solver")
                color: hero.theme.textMuted
                elide: Text.ElideRight
                font.family: hero.theme.fontFamily
                font.pixelSize: hero.type.bodyLg
            }

            RowLayout {
                Layout.topMargin: hero.theme.spaceMd
                spacing: hero.theme.spaceMd

                PrimaryButton {
                    objectName: "heroNewSolveButton"
                    theme: hero.theme
                    text: qsTranslate("HomePage", "New Solve")
                    iconText: "+"
                    onClicked: hero.newSolveClicked()
                }

                SecondaryButton {
                    objectName: "heroSaveButton"
                    theme: hero.theme
                    text: qsTranslate("HomePage", "Save")
                    iconName: "save"
                    onClicked: hero.saveClicked()
                }

                SecondaryButton {
                    objectName: "heroOpenButton"
                    theme: hero.theme
                    text: qsTranslate("HomePage", "Open File")
                    iconName: "folder-open"
                    onClicked: hero.openClicked()
                }
            }
        }

        Image {
            objectName: "heroLogo"
            Layout.preferredWidth: hero._logoSize
            Layout.preferredHeight: hero._logoSize
            Layout.alignment: Qt.AlignVCenter
            source: "qrc:/Kelvane/qml/assets/Orvanthis_logo.png"
            fillMode: Image.PreserveAspectFit
            smooth: true
        }
    }
}
