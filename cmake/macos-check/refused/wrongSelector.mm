// Must be refused: a message that the class does not know. With ACCEPTED it is the right one, so
// that nothing else can be what the compiler refuses.
#import <AppKit/AppKit.h>

#ifdef ACCEPTED
#define LAUNCH launchApplication
#else
#define LAUNCH launchAplication
#endif

bool launch(NSString* path);

bool launch(NSString* path) {
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
    return [NSWorkspace.sharedWorkspace LAUNCH:path];
}
