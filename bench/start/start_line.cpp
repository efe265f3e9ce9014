// The measure: a bare C++ program that prints one line.
#include <iostream>

int main() {
    std::cout << "side a  5\n";
}
