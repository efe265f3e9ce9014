// A local socket with a name of no file, which goes with the process that holds it.
#include "app/onlyone.h"

#include <QCryptographicHash>
#include <QSocketNotifier>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <system_error>
#include <utility>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace brindlex {

namespace {

struct Address {
    sockaddr_un name{};
    socklen_t size = 0;

    [[nodiscard]] const sockaddr* Get() const { return reinterpret_cast<const sockaddr*>(&name); }
};

// A name for the user and the folder. It starts with a zero, so it stands in no file system.
Address AddressOf(const std::filesystem::path& folder) {
    std::error_code failure;
    const std::filesystem::path plain = std::filesystem::canonical(folder, failure);
    const std::string of = failure ? folder.string() : plain.string();
    const QByteArray hash = QCryptographicHash::hash(QByteArray::fromStdString(of), QCryptographicHash::Sha1).toHex();
    const std::string text = "brindlex-" + std::to_string(::getuid()) + "-" + hash.toStdString();
    Address address;
    address.name.sun_family = AF_UNIX;
    const std::size_t length = std::min(text.size(), sizeof(address.name.sun_path) - 1);
    std::memcpy(address.name.sun_path + 1, text.data(), length);
    address.size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + length);
    return address;
}

bool IsOwnUsers(int connection) {
    ucred peer{};
    socklen_t size = sizeof(peer);
    return ::getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::getuid();
}

}  // namespace

OnlyOne::OnlyOne(const std::filesystem::path& folder)
    : socket_(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {
    if (socket_ < 0) {
        return;
    }
    const Address address = AddressOf(folder);
    if (::bind(socket_, address.Get(), address.size) == 0) {
        ::listen(socket_, 4);
        return;
    }
    calledFirst_ = ::connect(socket_, address.Get(), address.size) == 0 && IsOwnUsers(socket_);
    ::close(socket_);
    socket_ = -1;
}

OnlyOne::~OnlyOne() {
    if (socket_ >= 0) {
        ::close(socket_);
    }
}

void OnlyOne::WhenCalled(std::function<void()> come) {
    if (socket_ < 0) {
        return;
    }
    come_ = std::move(come);
    notifier_ = std::make_unique<QSocketNotifier>(socket_, QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
        const int caller = ::accept4(socket_, nullptr, nullptr, SOCK_CLOEXEC);
        if (caller < 0) {
            return;
        }
        const bool own = IsOwnUsers(caller);
        ::close(caller);
        if (own) {
            come_();
        }
    });
}

}  // namespace brindlex
