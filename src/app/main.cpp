#include "app/pelmora_app.h"

int main(int argc, char** argv) {
    return tarnix::CPelmoraApp(argc, argv).InitInstance();
}
