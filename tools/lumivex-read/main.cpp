// Reads one picture file for the program that starts it.
#include "platform/imageio/InputReading.h"
#include "platform/imageio/reader_process/ReaderServer.h"

#include <iostream>

#include <fcntl.h>
#include <unistd.h>

int main()
{
    if (::fcntl(imageio::kReaderSocket, F_GETFD) < 0) {
        std::cerr << "lumivex-read is started by lumivex and lumivex-render.\n";
        return 2;
    }
    imageio::serveReader(imageio::readPicture);
}
