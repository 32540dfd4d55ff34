#pragma once

#include "vdpatterndesign_export.h"

#include <QColor>
#include <QObject>
#include <QPair>
#include <QVariant>

#include <memory>

class QSettings;

namespace vardeno::testcharttools {

/// The colours, numbers and pictures that the library's style sheet is filled in with, read from a theme
/// file.
///
/// A theme file is an INI file, read as UTF-8: [General] ThemeName; [Colors] with the keys of `Color` and
/// values in the form AARRGGBB; [Integers] with the keys of `Integer`; [ImageFiles] with keys of the sheet's
/// choice and paths of pictures. GUI thread only.
class VDPATTERNDESIGN_EXPORT Theme : public QObject
{
    Q_OBJECT

public:
    /// The keys of [Colors].
    enum Color
    {
        BasiceAttributeBarColor,
        BasicAttributeBackgroundColor,
        BasiceAttributeFontColor,
        NameFontColor,
        NameLineEditBackgroundColor,
        TimePositionFontColor,
        TimePositionLineEditBackgroundColor,
        MediaTimeFontColor,
        MediaTimeLineEditBackgroundColor,
        StartTimeFontColor,
        StartTimeLineEditBackgroundColor,
        EndTimeFontColor,
        EndTimeLineEditBackgroundColor,
        PlayTimeFontColor,
        PlayTimeShowFontColor,
        LayerSettingBarColor,
        LayerSettingFontColor,
        LayerSettingBackgroundColor,
        ModelSelectFontColor,
        ChessRadioButtonFontColor,
        ColorStripeRadioButtonFontColor,
        ChessFontColor,
        OddFontColor,
        EvenFontColor,
        GradientFontColot,
        ColorStripeFontColor,
        LeftMoveBackgroundColor,
        ColorStripeBackgroundColor,
        RightMoveBackgroundColor,
        AddFontColor,
        AddButtonColor,
        DeleteFontColor,
        LightFontColor,
        LightLineEditBackgroundColor,
        ResolutionFontColor,
        ResolutionWLineEditBackgroundColor,
        ResolutionHLineEditBackgroundColor,
        ResolutionGetFontColor,
        BoxRowColNumFontColor,
        BoxRowNumLineEditBackgroundColor,
        BoxColNumLineEditBackgroundColor,
        BoxRowColNumGetFontColor,
        ShowOutLineFontColor,
        OutLineWidthFontColor,
        OutLineWidthLineEditBackgroundColor,
        OutLineColorFontColor,
        LayerSettingLineColor,
        ShowPersonalizationBarBackgroundColor,
        ShowPersonalizationFontColor,
        ShowPersonalizationBackgroundColor,
        ShowCircleFontColor,
        CirCleRadiusFontColor,
        CircleLineWidthFontColor,
        CircleLineWidthColor,
        ShowDiagonalFontColor,
        DiagonalLineWidthFontColor,
        DiagonalLineWidthLineEditBackgroundColor,
        DiagonalColorFontColor,
        ShowSequeFontColor,
        ShowSequeLineEidtBackgroundColor,
        ShowSequeColorFontColor,
        ShowModelFontColor,
        LetterModelFontColor,
        NumModelFontColor,
        CombinationFontColor,
        ShowPositionColor,
        ShowPositionLineEditBackgroundColor,
        SortFontColor,
        SortLineEditBackgroundColor,
        SortLineColor,
        ShowLogoFontColor,
        LogoStyleFontColor,
        PicLogoFontColor,
        TextLogoFontColor,
        UpLogoFontColor,
        UpLogoButtonFontColor,
        ScaleLogoFontColor,
        ScaleLogoLineEditBackgroundColor,
        ShowLogoPositionFontColor,
        ShowLogoPositionLineEditBackgroundColor,
        PositionSwitchFontColor,
        PositionSwitchXBackgroundColor,
        PositionSwitchYBackgroundColor,
        OpacityFontColor,
        OpacityLineEidtBackgroundColor,
        OpacityLineColor,
        TextLogoInputFontColor,
        TextLogoLineEditBackgroundColor,
        TextSizeFontColor,
        TextSizeLineEditBackgroundColor,
        TextSizeColorFontColor,
        SelfTextFontColor,
        SelfTextInputFontColor,
        SelfTextInputLineEditBackgroundColor,
        SelfTextSizeFontColor,
        SelfTextInputSizeLineEditBackgroundColor,
        SelfTextColorFontColor,
        ShowResolutionFontColor,
        ShowResolutionSizeFontColor,
        ShowResolutionSizeLineEditBackgroundColor,
        ShowResolutionColorFontColor,
        ShowBoxNumFontColor,
        ShowBoxNumSizeFontColor,
        ShowBoxNumSizeLineEditBackgroundColor,
        ShowBoxNumColorFontColor,
        SaveFontColor,
        SaveBackgroundColor,
        ViewWidgetBackgroundColor,
        MideaAttributeBackgroundColor,
        GlobalWidgetBackgroundColor,
        MediaAttributeFontColor,
        SaveWidgetBackgroundColor,
        SliderColor,
        SliderSubPage,
        OutLineBtnColor,
        CircleBtnColor,
        BtnColor,
        CustomDialog,
        ColorDialog,
        colorTitleWidgetColor,
        SaveBtnColor,
        BtnBorder,
        Primary01,
        Primary02,
        Primary03,
        Border01,
        Border02,
        Border03,
        Border04,
        Border05,
        Border06,
        Text01,
        Text02,
        Text03,
        Text04,
        TextLink,
        TextOnPrimary,
        Surface01,
        Surface02,
        Surface03,
        Surface04,
        Surface05,
        TspSurface01,
        TspSurface02,
        TspSurface03,
        GeneralButtonBackgroundNormal,
        GeneralButtonBackgroundHover,
        GeneralButtonBackgroundPressed,
        leftWidgetBackgroundColor,
        AssistButtonBackgroundNormal,
        AssistButtonBackgroundHover,
        AssistButtonBackgroundPressed,
        EditBackgroundColor,
        EditBorderColor,
        Color_W100,
        EditHighlightBorderColor,
        EditDisabledBackgroundColor,
        suggestLabel,
        oddDefault,
        evenDefault,
        B100,
        SliderAddPage,
        colorStripeRemovePushButtonBorder
    };
    Q_ENUM(Color)

    /// The keys of [Integers]: none so far.
    enum Integer
    {
    };
    Q_ENUM(Integer)

    explicit Theme(const QString& id, QObject* parent = nullptr);
    ~Theme() override;

    QString id() const;
    /// The file that was read first.
    QString fileName() const;
    /// "unnamed" where no file that was read has a name for it.
    QString displayName() const;

    /// Reads a theme file. A further one is laid over what has been read: what it leaves out stays as it is.
    /// The first warns of every key that it lacks. Values with an '@' could make `QSettings`
    /// create objects of any type and size: they are not read, which a warning tells.
    void readSettings(QSettings& settings);

    /// The colour that `value`, hexadecimal digits in the order AARRGGBB, stands for, and a null name; black,
    /// with a warning, where it stands for none.
    QPair<QColor, QString> readNamedColor(const QString& value) const;
    /// The first colour whose name is `name`; black, with a critical message, where there is none.
    QColor color(const QString& name) const;

    /// Everything that a style sheet can name: each key of `Color` with its `QColor` (invalid before it was
    /// read), each key of `Integer` with its int (-1), each key of [ImageFiles] with its path.
    QVariantMap values() const;

    /// Makes `theme` the library's current theme, which then owns it, and deletes the one before. Nothing
    /// happens where it is the current one already.
    static void setCurrentTheme(Theme* theme);
    /// Null before the first one was set, and after it was deleted.
    static Theme* currentTheme();

private:
    class Impl;
    std::unique_ptr<Impl> d;
};

} // namespace vardeno::testcharttools
