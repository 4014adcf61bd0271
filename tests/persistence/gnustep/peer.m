// Another implementation of keyed archives, GNUstep's, on results files:
//   peer read FILE        prints the results of a file
//   peer write FILE       writes the results that it reads, in the form that it prints, to a file
// One line a value; texts and bytes are in hexadecimal.
#import <Foundation/Foundation.h>

#include <stdio.h>
#include <string.h>

/// What the platform's own colour keeps in an archive.
@interface NSColor : NSObject <NSCoding>
{
@public
    double components[4];
}
@end

@implementation NSColor
- (id)initWithCoder:(NSCoder *)coder
{
    NSUInteger length = 0;
    const uint8_t *bytes = [coder decodeBytesForKey:@"NSRGB" returnedLength:&length];
    char text[200] = "";
    memcpy(text, bytes, length < sizeof text ? length : sizeof text - 1);
    components[3] = 1;
    if ([coder decodeIntForKey:@"NSColorSpace"] > 2 ||
        sscanf(text, "%lf %lf %lf %lf", components, components + 1, components + 2,
               components + 3) < 3)
        [NSException raise:NSGenericException format:@"this is no colour: %s", text];
    return self;
}
- (void)encodeWithCoder:(NSCoder *)coder
{
    char text[200];
    snprintf(text, sizeof text, "%.7g %.7g %.7g %.7g", components[0], components[1],
             components[2], components[3]);
    [coder encodeInt:1 forKey:@"NSColorSpace"];
    [coder encodeBytes:(const uint8_t *)text length:strlen(text) + 1 forKey:@"NSRGB"];
}
@end

@interface TSDataPoint : NSObject <NSCoding>
{
@public
    int64_t revision, rssiValue, noiseValue, channel, stationCount, chUtilization;
    NSDate *timestamp;
}
@end

@implementation TSDataPoint
- (id)initWithCoder:(NSCoder *)coder
{
    revision = [coder decodeInt64ForKey:@"revision"];
    rssiValue = [coder decodeInt64ForKey:@"rssiValue"];
    noiseValue = [coder decodeInt64ForKey:@"noiseValue"];
    channel = [coder decodeInt64ForKey:@"channel"];
    stationCount = [coder decodeInt64ForKey:@"stationCount"];
    chUtilization = [coder decodeInt64ForKey:@"chUtilization"];
    timestamp = [[coder decodeObjectForKey:@"timestamp"] retain];
    return self;
}
- (void)encodeWithCoder:(NSCoder *)coder
{
    [coder encodeInt64:revision forKey:@"revision"];
    [coder encodeInt64:rssiValue forKey:@"rssiValue"];
    [coder encodeInt64:noiseValue forKey:@"noiseValue"];
    [coder encodeInt64:channel forKey:@"channel"];
    [coder encodeInt64:stationCount forKey:@"stationCount"];
    [coder encodeInt64:chUtilization forKey:@"chUtilization"];
    [coder encodeObject:timestamp forKey:@"timestamp"];
}
@end

@interface TSNetwork : NSObject <NSCoding>
{
@public
    NSDictionary *network;
    NSArray *dataPoints;
    NSColor *color;
    NSDate *lastSeen;
    NSString *deviceName;
    NSString *annotations;
}
@end

@implementation TSNetwork
- (id)initWithCoder:(NSCoder *)coder
{
    network = [[coder decodeObjectForKey:@"network"] retain];
    dataPoints = [[coder decodeObjectForKey:@"dataPoints"] retain];
    color = [[coder decodeObjectForKey:@"color"] retain];
    lastSeen = [[coder decodeObjectForKey:@"lastSeen"] retain];
    deviceName = [[coder decodeObjectForKey:@"deviceName"] retain];
    annotations = [[coder decodeObjectForKey:@"annotations"] retain];
    return self;
}
- (void)encodeWithCoder:(NSCoder *)coder
{
    [coder encodeObject:network forKey:@"network"];
    [coder encodeObject:dataPoints forKey:@"dataPoints"];
    [coder encodeObject:color forKey:@"color"];
    [coder encodeObject:lastSeen forKey:@"lastSeen"];
    if (deviceName)
        [coder encodeObject:deviceName forKey:@"deviceName"];
    if (annotations)
        [coder encodeObject:annotations forKey:@"annotations"];
}
@end

// Reading a file ---------------------------------------------------------------------------------

static void printBytes(const char *name, NSData *data)
{
    printf("%s ", name);
    const uint8_t *bytes = [data bytes];
    for (NSUInteger i = 0; i < [data length]; ++i)
        printf("%02x", bytes[i]);
    printf("\n");
}

static void printText(const char *name, NSString *text)
{
    if (text)
        printBytes(name, [text dataUsingEncoding:NSUTF8StringEncoding]);
}

static void printTime(const char *name, NSDate *time)
{
    printf("%s %.17g\n", name, [time timeIntervalSince1970]);
}

static void printNetwork(TSNetwork *network)
{
    printf("network\n");
    NSArray *keys = [[network->network allKeys] sortedArrayUsingSelector:@selector(compare:)];
    for (NSString *key in keys) {
        id value = [network->network objectForKey:key];
        char name[100];
        snprintf(name, sizeof name, "entry %s", [key UTF8String]);
        if ([value isKindOfClass:[NSString class]])
            printText(name, value);
        else if ([value isKindOfClass:[NSData class]])
            printBytes(name, value);
        else
            printf("%s %lld\n", name, [value longLongValue]);
    }
    const double *color = network->color->components;
    printf("color %.4f %.4f %.4f %.4f\n", color[0], color[1], color[2], color[3]);
    printTime("lastSeen", network->lastSeen);
    printText("deviceName", network->deviceName);
    printText("annotations", network->annotations);
    for (TSDataPoint *sample in network->dataPoints)
        printf("sample %lld %lld %lld %lld %lld %lld %.17g\n", (long long)sample->revision,
               (long long)sample->rssiValue, (long long)sample->noiseValue,
               (long long)sample->channel, (long long)sample->stationCount,
               (long long)sample->chUtilization, [sample->timestamp timeIntervalSince1970]);
}

static void printFile(NSString *path)
{
    NSDictionary *root = [NSKeyedUnarchiver unarchiveObjectWithFile:path];
    printTime("lastScanTime", [root objectForKey:@"lastScanTime"]);
    for (TSNetwork *network in [root objectForKey:@"networks"])
        printNetwork(network);
}

// Writing a file ---------------------------------------------------------------------------------

static NSData *bytesOf(NSString *hex)
{
    NSMutableData *data = [NSMutableData data];
    for (NSUInteger i = 0; i + 1 < [hex length]; i += 2) {
        unsigned byte = 0;
        sscanf([[hex substringWithRange:NSMakeRange(i, 2)] UTF8String], "%x", &byte);
        const uint8_t octet = byte;
        [data appendBytes:&octet length:1];
    }
    return data; // a mutable one
}

static NSString *textOf(NSString *hex)
{
    NSString *text = [[NSString alloc] initWithData:bytesOf(hex) encoding:NSUTF8StringEncoding];
    return [text length] % 2 ? [NSMutableString stringWithString:text] : text;
}

static id entryOf(NSString *key, NSString *value)
{
    if ([key isEqual:@"bssid"] || [key isEqual:@"ssid"])
        return textOf(value);
    if ([key isEqual:@"informationElementData"])
        return bytesOf(value);
    if ([key isEqual:@"ibss"])
        return [NSNumber numberWithBool:[value boolValue]];
    return [NSNumber numberWithLongLong:[value longLongValue]];
}

static NSDate *timeOf(NSString *seconds)
{
    return [NSDate dateWithTimeIntervalSince1970:strtod([seconds UTF8String], NULL)];
}

static void writeFile(NSString *path)
{
    NSMutableDictionary *root = [NSMutableDictionary dictionary];
    NSMutableArray *networks = [NSMutableArray array];
    TSNetwork *network = nil;
    char line[100000];
    while (fgets(line, sizeof line, stdin)) {
        line[strcspn(line, "\n")] = 0;
        NSArray *words =
            [[NSString stringWithUTF8String:line] componentsSeparatedByString:@" "];
        NSString *name = [words objectAtIndex:0];
        NSString *word = [words count] > 1 ? [words objectAtIndex:1] : @"";
        if ([name isEqual:@"lastScanTime"]) {
            [root setObject:timeOf(word) forKey:name];
        } else if ([name isEqual:@"network"]) {
            network = [TSNetwork new];
            network->network = [NSMutableDictionary new];
            network->dataPoints = [NSMutableArray new];
            network->color = [NSColor new];
            [networks addObject:network];
        } else if ([name isEqual:@"entry"]) {
            [(NSMutableDictionary *)network->network setObject:entryOf(word, [words objectAtIndex:2])
                                                        forKey:word];
        } else if ([name isEqual:@"color"]) {
            for (int i = 0; i < 4; ++i)
                network->color->components[i] = [[words objectAtIndex:i + 1] doubleValue];
        } else if ([name isEqual:@"lastSeen"]) {
            network->lastSeen = [timeOf(word) retain];
        } else if ([name isEqual:@"deviceName"]) {
            network->deviceName = [textOf(word) retain];
        } else if ([name isEqual:@"annotations"]) {
            network->annotations = [textOf(word) retain];
        } else if ([name isEqual:@"sample"]) {
            TSDataPoint *sample = [TSDataPoint new];
            int64_t *fields[] = {&sample->revision, &sample->rssiValue, &sample->noiseValue,
                                 &sample->channel, &sample->stationCount, &sample->chUtilization};
            for (int i = 0; i < 6; ++i)
                *fields[i] = [[words objectAtIndex:i + 1] longLongValue];
            sample->timestamp = [timeOf([words objectAtIndex:7]) retain];
            [(NSMutableArray *)network->dataPoints addObject:sample];
        }
    }
    [root setObject:networks forKey:@"networks"];
    NSMutableData *data = [NSMutableData data];
    NSKeyedArchiver *archiver = [[NSKeyedArchiver alloc] initForWritingWithMutableData:data];
    [archiver setOutputFormat:NSPropertyListBinaryFormat_v1_0];
    [archiver encodeObject:root forKey:@"root"];
    [archiver finishEncoding];
    if (![data writeToFile:path atomically:YES])
        [NSException raise:NSGenericException format:@"%@ cannot be written", path];
}

int main(int argc, char **argv)
{
    NSAutoreleasePool *pool = [NSAutoreleasePool new];
    if (argc != 3)
        return 2;
    NSString *path = [NSString stringWithUTF8String:argv[2]];
    if (strcmp(argv[1], "read") == 0)
        printFile(path);
    else
        writeFile(path);
    [pool release];
    return 0;
}
