// The type scale: pixel sizes, their short aliases, weights, line heights and letter spacing.
import QtQuick

QtObject {
    readonly property int displayLg: 36
    readonly property int displayMd: 30
    readonly property int displaySm: 24
    readonly property int headingLg: 20
    readonly property int headingMd: 18
    readonly property int headingSm: 16
    readonly property int bodyLg: 15
    readonly property int bodyMd: 14
    readonly property int bodySm: 13
    readonly property int labelLg: 13
    readonly property int labelMd: 12
    readonly property int labelSm: 11
    readonly property int mono: 13

    readonly property int h1: displayMd
    readonly property int h2: headingLg
    readonly property int h3: headingMd
    readonly property int body: bodyMd
    readonly property int small: labelMd

    readonly property int weightLight: 300
    readonly property int weightRegular: 400
    readonly property int weightMedium: 500
    readonly property int weightSemibold: 600
    readonly property int weightBold: 700
    readonly property int weightExtrabold: 800

    readonly property real lineHeightTight: 1.25
    readonly property real lineHeightNormal: 1.5
    readonly property real lineHeightRelaxed: 1.75

    readonly property real trackingTight: -0.025
    readonly property real trackingNormal: 0
    readonly property real trackingWide: 0.025
}
