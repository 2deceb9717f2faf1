#pragma once

#include <cstdint>

/// Enumerations of the flat GDI+ interface, with their published names and values.
namespace vxgui::gdiplus {

enum Status : int32_t {
    Ok = 0,
    GenericError = 1,
    InvalidParameter = 2,
    OutOfMemory = 3,
    ObjectBusy = 4,
    InsufficientBuffer = 5,
    NotImplemented = 6,
    Win32Error = 7,
    WrongState = 8,
    Aborted = 9,
    FileNotFound = 10,
    ValueOverflow = 11,
    AccessDenied = 12,
    UnknownImageFormat = 13,
    FontFamilyNotFound = 14,
    FontStyleNotFound = 15,
    NotTrueTypeFont = 16,
    UnsupportedGdiplusVersion = 17,
    GdiplusNotInitialized = 18,
    PropertyNotFound = 19,
    PropertyNotSupported = 20,
    ProfileNotFound = 21,
};
using GpStatus = Status;

using PixelFormat = int32_t;
constexpr PixelFormat PixelFormat1bppIndexed = 0x00030101, PixelFormat4bppIndexed = 0x00030402,
                      PixelFormat8bppIndexed = 0x00030803, PixelFormat16bppGrayScale = 0x00101004,
                      PixelFormat16bppRGB555 = 0x00021005, PixelFormat16bppRGB565 = 0x00021006,
                      PixelFormat16bppARGB1555 = 0x00061007, PixelFormat24bppRGB = 0x00021808,
                      PixelFormat32bppRGB = 0x00022009, PixelFormat32bppARGB = 0x0026200A,
                      PixelFormat32bppPARGB = 0x000E200B, PixelFormat48bppRGB = 0x0010300C,
                      PixelFormat64bppARGB = 0x0034400D, PixelFormat64bppPARGB = 0x001C400E,
                      PixelFormat32bppCMYK = 0x0000200F;

constexpr PixelFormat PixelFormatIndexed = 0x00010000, PixelFormatGDI = 0x00020000,
                      PixelFormatAlpha = 0x00040000, PixelFormatPAlpha = 0x00080000,
                      PixelFormatExtended = 0x00100000, PixelFormatCanonical = 0x00200000,
                      PixelFormatUndefined = 0;

/// Flags of `GdipBitmapLockBits`.
constexpr uint32_t ImageLockModeRead = 1, ImageLockModeWrite = 2, ImageLockModeUserInputBuf = 4;

enum PaletteFlags : int32_t {
    PaletteFlagsHasAlpha = 1,
    PaletteFlagsGrayScale = 2,
    PaletteFlagsHalftone = 4,
};
enum PaletteType : int32_t {
    PaletteTypeCustom = 0,
    PaletteTypeOptimal = 1,
    PaletteTypeFixedBW = 2,
    PaletteTypeFixedHalftone8 = 3,
    PaletteTypeFixedHalftone27 = 4,
    PaletteTypeFixedHalftone64 = 5,
    PaletteTypeFixedHalftone125 = 6,
    PaletteTypeFixedHalftone216 = 7,
    PaletteTypeFixedHalftone252 = 8,
    PaletteTypeFixedHalftone256 = 9,
};
enum DitherType : int32_t {
    DitherTypeNone = 0,
    DitherTypeSolid = 1,
    DitherTypeOrdered4x4 = 2,
    DitherTypeOrdered8x8 = 3,
    DitherTypeOrdered16x16 = 4,
    DitherTypeSpiral4x4 = 5,
    DitherTypeSpiral8x8 = 6,
    DitherTypeDualSpiral4x4 = 7,
    DitherTypeDualSpiral8x8 = 8,
    DitherTypeErrorDiffusion = 9,
    DitherTypeMax = 10,
};
enum HistogramFormat : int32_t {
    HistogramFormatARGB = 0,
    HistogramFormatPARGB = 1,
    HistogramFormatRGB = 2,
    HistogramFormatGray = 3,
    HistogramFormatB = 4,
    HistogramFormatG = 5,
    HistogramFormatR = 6,
    HistogramFormatA = 7,
};

enum ImageType : int32_t { ImageTypeUnknown = 0, ImageTypeBitmap = 1, ImageTypeMetafile = 2 };
enum ImageFlags : int32_t {
    ImageFlagsNone = 0,
    ImageFlagsScalable = 0x0001,
    ImageFlagsHasAlpha = 0x0002,
    ImageFlagsHasTranslucent = 0x0004,
    ImageFlagsPartiallyScalable = 0x0008,
    ImageFlagsColorSpaceRGB = 0x0010,
    ImageFlagsColorSpaceCMYK = 0x0020,
    ImageFlagsColorSpaceGRAY = 0x0040,
    ImageFlagsColorSpaceYCBCR = 0x0080,
    ImageFlagsColorSpaceYCCK = 0x0100,
    ImageFlagsHasRealDPI = 0x1000,
    ImageFlagsHasRealPixelSize = 0x2000,
    ImageFlagsReadOnly = 0x00010000,
    ImageFlagsCaching = 0x00020000,
};
enum RotateFlipType : int32_t {
    RotateNoneFlipNone = 0,
    Rotate90FlipNone = 1,
    Rotate180FlipNone = 2,
    Rotate270FlipNone = 3,
    RotateNoneFlipX = 4,
    Rotate90FlipX = 5,
    Rotate180FlipX = 6,
    Rotate270FlipX = 7,
};

enum Unit : int32_t {
    UnitWorld = 0,
    UnitDisplay = 1,
    UnitPixel = 2,
    UnitPoint = 3,
    UnitInch = 4,
    UnitDocument = 5,
    UnitMillimeter = 6,
};
enum MatrixOrder : int32_t { MatrixOrderPrepend = 0, MatrixOrderAppend = 1 };
enum FlushIntention : int32_t { FlushIntentionFlush = 0, FlushIntentionSync = 1 };
enum CombineMode : int32_t {
    CombineModeReplace = 0,
    CombineModeIntersect = 1,
    CombineModeUnion = 2,
    CombineModeXor = 3,
    CombineModeExclude = 4,
    CombineModeComplement = 5,
};

enum QualityMode : int32_t {
    QualityModeInvalid = -1,
    QualityModeDefault = 0,
    QualityModeLow = 1,
    QualityModeHigh = 2,
};
enum CompositingMode : int32_t { CompositingModeSourceOver = 0, CompositingModeSourceCopy = 1 };
enum CompositingQuality : int32_t {
    CompositingQualityInvalid = -1,
    CompositingQualityDefault = 0,
    CompositingQualityHighSpeed = 1,
    CompositingQualityHighQuality = 2,
    CompositingQualityGammaCorrected = 3,
    CompositingQualityAssumeLinear = 4,
};
enum SmoothingMode : int32_t {
    SmoothingModeInvalid = -1,
    SmoothingModeDefault = 0,
    SmoothingModeHighSpeed = 1,
    SmoothingModeHighQuality = 2,
    SmoothingModeNone = 3,
    SmoothingModeAntiAlias = 4,
    SmoothingModeAntiAlias8x8 = 5,
};
enum InterpolationMode : int32_t {
    InterpolationModeInvalid = -1,
    InterpolationModeDefault = 0,
    InterpolationModeLowQuality = 1,
    InterpolationModeHighQuality = 2,
    InterpolationModeBilinear = 3,
    InterpolationModeBicubic = 4,
    InterpolationModeNearestNeighbor = 5,
    InterpolationModeHighQualityBilinear = 6,
    InterpolationModeHighQualityBicubic = 7,
};
enum PixelOffsetMode : int32_t {
    PixelOffsetModeInvalid = -1,
    PixelOffsetModeDefault = 0,
    PixelOffsetModeHighSpeed = 1,
    PixelOffsetModeHighQuality = 2,
    PixelOffsetModeNone = 3,
    PixelOffsetModeHalf = 4,
};

enum FillMode : int32_t { FillModeAlternate = 0, FillModeWinding = 1 };
enum PathPointType : int32_t {
    PathPointTypeStart = 0,
    PathPointTypeLine = 1,
    PathPointTypeBezier = 3,
    PathPointTypePathTypeMask = 0x07,
    PathPointTypeDashMode = 0x10,
    PathPointTypePathMarker = 0x20,
    PathPointTypeCloseSubpath = 0x80,
};
enum WarpMode : int32_t { WarpModePerspective = 0, WarpModeBilinear = 1 };

enum LineCap : int32_t {
    LineCapFlat = 0,
    LineCapSquare = 1,
    LineCapRound = 2,
    LineCapTriangle = 3,
    LineCapNoAnchor = 0x10,
    LineCapSquareAnchor = 0x11,
    LineCapRoundAnchor = 0x12,
    LineCapDiamondAnchor = 0x13,
    LineCapArrowAnchor = 0x14,
    LineCapCustom = 0xFF,
    LineCapAnchorMask = 0xF0,
};
enum DashCap : int32_t { DashCapFlat = 0, DashCapRound = 2, DashCapTriangle = 3 };
enum LineJoin : int32_t {
    LineJoinMiter = 0,
    LineJoinBevel = 1,
    LineJoinRound = 2,
    LineJoinMiterClipped = 3,
};
enum DashStyle : int32_t {
    DashStyleSolid = 0,
    DashStyleDash = 1,
    DashStyleDot = 2,
    DashStyleDashDot = 3,
    DashStyleDashDotDot = 4,
    DashStyleCustom = 5,
};
enum PenAlignment : int32_t { PenAlignmentCenter = 0, PenAlignmentInset = 1 };
enum PenType : int32_t {
    PenTypeSolidColor = 0,
    PenTypeHatchFill = 1,
    PenTypeTextureFill = 2,
    PenTypePathGradient = 3,
    PenTypeLinearGradient = 4,
    PenTypeUnknown = -1,
};

enum BrushType : int32_t {
    BrushTypeSolidColor = 0,
    BrushTypeHatchFill = 1,
    BrushTypeTextureFill = 2,
    BrushTypePathGradient = 3,
    BrushTypeLinearGradient = 4,
};
enum WrapMode : int32_t {
    WrapModeTile = 0,
    WrapModeTileFlipX = 1,
    WrapModeTileFlipY = 2,
    WrapModeTileFlipXY = 3,
    WrapModeClamp = 4,
};
enum LinearGradientMode : int32_t {
    LinearGradientModeHorizontal = 0,
    LinearGradientModeVertical = 1,
    LinearGradientModeForwardDiagonal = 2,
    LinearGradientModeBackwardDiagonal = 3,
};
enum HatchStyle : int32_t {
    HatchStyleHorizontal = 0,
    HatchStyleVertical = 1,
    HatchStyleForwardDiagonal = 2,
    HatchStyleBackwardDiagonal = 3,
    HatchStyleCross = 4,
    HatchStyleDiagonalCross = 5,
    HatchStyle05Percent = 6,
    HatchStyle10Percent = 7,
    HatchStyle20Percent = 8,
    HatchStyle25Percent = 9,
    HatchStyle30Percent = 10,
    HatchStyle40Percent = 11,
    HatchStyle50Percent = 12,
    HatchStyle60Percent = 13,
    HatchStyle70Percent = 14,
    HatchStyle75Percent = 15,
    HatchStyle80Percent = 16,
    HatchStyle90Percent = 17,
    HatchStyleLightDownwardDiagonal = 18,
    HatchStyleLightUpwardDiagonal = 19,
    HatchStyleDarkDownwardDiagonal = 20,
    HatchStyleDarkUpwardDiagonal = 21,
    HatchStyleWideDownwardDiagonal = 22,
    HatchStyleWideUpwardDiagonal = 23,
    HatchStyleLightVertical = 24,
    HatchStyleLightHorizontal = 25,
    HatchStyleNarrowVertical = 26,
    HatchStyleNarrowHorizontal = 27,
    HatchStyleDarkVertical = 28,
    HatchStyleDarkHorizontal = 29,
    HatchStyleDashedDownwardDiagonal = 30,
    HatchStyleDashedUpwardDiagonal = 31,
    HatchStyleDashedHorizontal = 32,
    HatchStyleDashedVertical = 33,
    HatchStyleSmallConfetti = 34,
    HatchStyleLargeConfetti = 35,
    HatchStyleZigZag = 36,
    HatchStyleWave = 37,
    HatchStyleDiagonalBrick = 38,
    HatchStyleHorizontalBrick = 39,
    HatchStyleWeave = 40,
    HatchStylePlaid = 41,
    HatchStyleDivot = 42,
    HatchStyleDottedGrid = 43,
    HatchStyleDottedDiamond = 44,
    HatchStyleShingle = 45,
    HatchStyleTrellis = 46,
    HatchStyleSphere = 47,
    HatchStyleSmallGrid = 48,
    HatchStyleSmallCheckerBoard = 49,
    HatchStyleLargeCheckerBoard = 50,
    HatchStyleOutlinedDiamond = 51,
    HatchStyleSolidDiamond = 52,
    HatchStyleTotal = 53,
};

enum ColorAdjustType : int32_t {
    ColorAdjustTypeDefault = 0,
    ColorAdjustTypeBitmap = 1,
    ColorAdjustTypeBrush = 2,
    ColorAdjustTypePen = 3,
    ColorAdjustTypeText = 4,
    ColorAdjustTypeCount = 5,
    ColorAdjustTypeAny = 6,
};
enum ColorMatrixFlags : int32_t {
    ColorMatrixFlagsDefault = 0,
    ColorMatrixFlagsSkipGrays = 1,
    ColorMatrixFlagsAltGray = 2,
};
enum ColorChannelFlags : int32_t {
    ColorChannelFlagsC = 0,
    ColorChannelFlagsM = 1,
    ColorChannelFlagsY = 2,
    ColorChannelFlagsK = 3,
    ColorChannelFlagsLast = 4,
};

enum FontStyle : int32_t {
    FontStyleRegular = 0,
    FontStyleBold = 1,
    FontStyleItalic = 2,
    FontStyleBoldItalic = 3,
    FontStyleUnderline = 4,
    FontStyleStrikeout = 8,
};
enum TextRenderingHint : int32_t {
    TextRenderingHintSystemDefault = 0,
    TextRenderingHintSingleBitPerPixelGridFit = 1,
    TextRenderingHintSingleBitPerPixel = 2,
    TextRenderingHintAntiAliasGridFit = 3,
    TextRenderingHintAntiAlias = 4,
    TextRenderingHintClearTypeGridFit = 5,
};
enum StringAlignment : int32_t {
    StringAlignmentNear = 0,
    StringAlignmentCenter = 1,
    StringAlignmentFar = 2,
};
enum StringTrimming : int32_t {
    StringTrimmingNone = 0,
    StringTrimmingCharacter = 1,
    StringTrimmingWord = 2,
    StringTrimmingEllipsisCharacter = 3,
    StringTrimmingEllipsisWord = 4,
    StringTrimmingEllipsisPath = 5,
};
enum HotkeyPrefix : int32_t { HotkeyPrefixNone = 0, HotkeyPrefixShow = 1, HotkeyPrefixHide = 2 };
enum StringDigitSubstitute : int32_t {
    StringDigitSubstituteUser = 0,
    StringDigitSubstituteNone = 1,
    StringDigitSubstituteNational = 2,
    StringDigitSubstituteTraditional = 3,
};
enum StringFormatFlags : int32_t {
    StringFormatFlagsDirectionRightToLeft = 0x00000001,
    StringFormatFlagsDirectionVertical = 0x00000002,
    StringFormatFlagsNoFitBlackBox = 0x00000004,
    StringFormatFlagsDisplayFormatControl = 0x00000020,
    StringFormatFlagsNoFontFallback = 0x00000400,
    StringFormatFlagsMeasureTrailingSpaces = 0x00000800,
    StringFormatFlagsNoWrap = 0x00001000,
    StringFormatFlagsLineLimit = 0x00002000,
    StringFormatFlagsNoClip = 0x00004000,
};

}  // namespace vxgui::gdiplus
