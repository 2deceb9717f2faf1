#pragma once

#include "vxgui/platform/gdiplus_types.h"

/// Published identifiers of file formats, codecs, frame dimensions and encoder parameters.
namespace vxgui::gdiplus {

constexpr GUID ImageFormatOf(DWORD data1) {
    return {data1, 0x0728, 0x11D3, {0x9D, 0x7B, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
}
constexpr GUID ImageFormatUndefined = ImageFormatOf(0xB96B3CA9),
               ImageFormatMemoryBMP = ImageFormatOf(0xB96B3CAA),
               ImageFormatBMP = ImageFormatOf(0xB96B3CAB),
               ImageFormatJPEG = ImageFormatOf(0xB96B3CAE),
               ImageFormatPNG = ImageFormatOf(0xB96B3CAF),
               ImageFormatGIF = ImageFormatOf(0xB96B3CB0),
               ImageFormatTIFF = ImageFormatOf(0xB96B3CB1),
               ImageFormatIcon = ImageFormatOf(0xB96B3CB5);

constexpr CLSID CodecOf(DWORD data1) {
    return {data1, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
}
constexpr CLSID CodecBMP = CodecOf(0x557CF400), CodecJPEG = CodecOf(0x557CF401),
                CodecGIF = CodecOf(0x557CF402), CodecTIFF = CodecOf(0x557CF405),
                CodecPNG = CodecOf(0x557CF406), CodecIcon = CodecOf(0x557CF407);

constexpr GUID FrameDimensionTime = {0x6AEDBD6D,
                                     0x3FB5,
                                     0x418A,
                                     {0x83, 0xA6, 0x7F, 0x45, 0x22, 0x9D, 0xC8, 0x72}},
               FrameDimensionResolution = {0x84236F7B,
                                           0x3BD3,
                                           0x428F,
                                           {0x8D, 0xAB, 0x4E, 0xA1, 0x43, 0x9C, 0xA3, 0x15}},
               FrameDimensionPage = {
                   0x7462DC86, 0x6180, 0x4C7E, {0x8E, 0x3F, 0xEE, 0x73, 0x33, 0xA7, 0xA4, 0x83}};

constexpr GUID EncoderCompression = {0xE09D739D,
                                     0xCCD4,
                                     0x44EE,
                                     {0x8E, 0xBA, 0x3F, 0xBF, 0x8B, 0xE4, 0xFC, 0x58}},
               EncoderColorDepth = {0x66087055,
                                    0xAD66,
                                    0x4C7C,
                                    {0x9A, 0x18, 0x38, 0xA2, 0x31, 0x0B, 0x83, 0x37}},
               EncoderTransformation = {0x8D0EB2D1,
                                        0xA58E,
                                        0x4EA8,
                                        {0xAA, 0x14, 0x10, 0x80, 0x74, 0xB7, 0xB6, 0xF9}},
               EncoderQuality = {0x1D5BE4B5,
                                 0xFA4A,
                                 0x452D,
                                 {0x9C, 0xDD, 0x5D, 0xB3, 0x51, 0x05, 0xE7, 0xEB}},
               EncoderLuminanceTable = {0xEDB33BCE,
                                        0x0266,
                                        0x4A77,
                                        {0xB9, 0x04, 0x27, 0x21, 0x60, 0x99, 0xE7, 0x17}},
               EncoderChrominanceTable = {0xF2E455DC,
                                          0x09B3,
                                          0x4316,
                                          {0x82, 0x60, 0x67, 0x6A, 0xDA, 0x32, 0x48, 0x1C}},
               EncoderSaveFlag = {
                   0x292266FC, 0xAC40, 0x47BF, {0x8C, 0xFC, 0xA8, 0x5B, 0x89, 0xA6, 0x55, 0xDE}};

enum EncoderParameterValueType : int32_t {
    EncoderParameterValueTypeByte = 1,
    EncoderParameterValueTypeASCII = 2,
    EncoderParameterValueTypeShort = 3,
    EncoderParameterValueTypeLong = 4,
    EncoderParameterValueTypeRational = 5,
    EncoderParameterValueTypeLongRange = 6,
    EncoderParameterValueTypeUndefined = 7,
    EncoderParameterValueTypeRationalRange = 8,
};

enum EncoderValue : int32_t {
    EncoderValueCompressionLZW = 2,
    EncoderValueCompressionCCITT3 = 3,
    EncoderValueCompressionCCITT4 = 4,
    EncoderValueCompressionRle = 5,
    EncoderValueCompressionNone = 6,
    EncoderValueTransformRotate90 = 13,
    EncoderValueTransformRotate180 = 14,
    EncoderValueTransformRotate270 = 15,
    EncoderValueTransformFlipHorizontal = 16,
    EncoderValueTransformFlipVertical = 17,
    EncoderValueMultiFrame = 18,
    EncoderValueLastFrame = 19,
    EncoderValueFlush = 20,
    EncoderValueFrameDimensionTime = 21,
    EncoderValueFrameDimensionResolution = 22,
    EncoderValueFrameDimensionPage = 23,
};

/// Flags of a codec's record.
enum ImageCodecFlags : int32_t {
    ImageCodecFlagsEncoder = 0x1,
    ImageCodecFlagsDecoder = 0x2,
    ImageCodecFlagsSupportBitmap = 0x4,
    ImageCodecFlagsSupportVector = 0x8,
    ImageCodecFlagsSeekableEncode = 0x10,
    ImageCodecFlagsBlockingDecode = 0x20,
    ImageCodecFlagsBuiltin = 0x10000,
};

}  // namespace vxgui::gdiplus
