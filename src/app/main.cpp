#include <iostream>

int main() {
    std::cout << "Marivox: the game screen is not built yet.\n";
    return 0;
}
